#pragma once

#include <QStringList>
#include <QTranslator>
#include <string>

namespace vantle {

/// The texts of the program in the user's language, while it lives: those of the logic and the
/// services (support/Localization.h) and, once it is installed, those of the views. Made and ended
/// on the main thread, while it is the only one.
class Translations {
public:
    /// Where a program that is in a `bin` folder finds the translations, with or without an
    /// application object.
    static QString folderOfProgram();

    /// Takes the first of `languages` (as "de-AT") of which `folder` holds a translation
    /// ("vantle_de.qm"), and English where there is none: the texts are written in English, but for
    /// another system, so that what they say of the desktop has to be said anew for this one. By
    /// default the desktop's languages, in the user's order.
    explicit Translations(const QString& folder = folderOfProgram(),
                          const QStringList& languages = languagesOfDesktop());
    ~Translations();
    Translations(const Translations&) = delete;
    Translations& operator=(const Translations&) = delete;

    /// For the views as well. Needs the application object, which may end before this does.
    void install();

    /// Which was taken, as its file calls it ("de"); empty where not even English is there.
    QString language() const { return translator_.language(); }

private:
    static QStringList languagesOfDesktop();

    QTranslator translator_;
};

}  // namespace vantle
