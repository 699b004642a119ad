#pragma once

#include <QStringList>
#include <QTranslator>
#include <string>

namespace vantle {

/// Provides the texts of the program in the user's language as long as it lives: those of the logic
/// and the services (support/Localization.h) and, after install(), those of the views. Create and
/// destroy it on the main thread, while there is no other thread.
class Translations {
public:
    /// Returns the folder where a program in a `bin` folder finds the translations. Works with or
    /// without an application object.
    static QString folderOfProgram();

    /// Loads the first of `languages` (such as "de-AT") for which `folder` holds a translation
    /// ("vantle_de.qm"), and English if there is none. English needs a file as well: the texts in
    /// the code are English but written for another system, so what they say about the desktop has
    /// to be worded differently for this one. The default is the desktop's languages, in the user's
    /// order.
    explicit Translations(const QString& folder = folderOfProgram(),
                          const QStringList& languages = languagesOfDesktop());
    ~Translations();
    Translations(const Translations&) = delete;
    Translations& operator=(const Translations&) = delete;

    /// Makes the views use the texts as well. Needs the application object, which may end before
    /// this object does.
    void install();

    /// Returns the language that was loaded, as its file names it ("de"); empty if not even English
    /// was found.
    QString language() const { return translator_.language(); }

private:
    static QStringList languagesOfDesktop();

    QTranslator translator_;
};

}  // namespace vantle
