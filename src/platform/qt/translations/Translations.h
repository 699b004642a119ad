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
    /// ("vantle_de.qm"); none, where English stands before it: that is what the texts are written
    /// in. By default the desktop's, in the user's order.
    explicit Translations(const QString& folder = folderOfProgram(),
                          const QStringList& languages = languagesOfDesktop());
    ~Translations();
    Translations(const Translations&) = delete;
    Translations& operator=(const Translations&) = delete;

    /// For the views as well. Needs the application object, which may end before this does.
    void install();

    /// Which was taken, as its file calls it ("de"); empty for the texts as they are written.
    QString language() const { return translator_.language(); }

private:
    static QStringList languagesOfDesktop();

    QTranslator translator_;
};

}  // namespace vantle
