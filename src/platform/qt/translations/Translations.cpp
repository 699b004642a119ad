#include "platform/qt/translations/Translations.h"

#include <QCoreApplication>
#include <QFile>
#include <QLocale>
#include <algorithm>

#include "support/Localization.h"
#include "support/ProgramFile.h"

namespace vantle {
namespace {

/// The toolkit looks up this text to find out in which direction a language is written.
[[maybe_unused]] constexpr const char* direction =
    //: Not shown. "LTR" for languages written from left to right, "RTL" for those from right to
    //: left.
    QT_TRANSLATE_NOOP("QGuiApplication", "QT_LAYOUT_DIRECTION");

/// "C" is the language of a system on which none has been chosen.
bool isEnglish(const QString& language) {
    return language == QLatin1String("C") || language == QLatin1String("en") ||
           language.startsWith(QLatin1String("en-"));
}

}  // namespace

QString Translations::folderOfProgram() {
    const std::string folder = programFile().parent_path().string();
    return QFile::decodeName(folder.c_str()) + QStringLiteral("/../share/vantle/translations");
}

QStringList Translations::languagesOfDesktop() {
    return QLocale::system().uiLanguages();
}

Translations::Translations(const QString& folder, const QStringList& languages) {
    const auto load = [&](QString language) {
        // If there is no file "vantle_de_AT", the toolkit looks for "vantle_de".
        return translator_.load(QStringLiteral("vantle_") + language.replace(u'-', u'_'), folder);
    };
    const auto english = QStringLiteral("en");
    const auto isLoaded = [&](const QString& language) {
        return load(isEnglish(language) ? english : language);
    };
    if (std::ranges::none_of(languages, isLoaded) && !load(english)) return;
    setTranslator([this](const char* context, const char* text) {
        const QString found = translator_.translate(context, text);
        return found.isEmpty() ? std::string(text) : found.toStdString();
    });
}

Translations::~Translations() {
    setTranslator({});
}

void Translations::install() {
    if (!language().isEmpty()) QCoreApplication::installTranslator(&translator_);
}

}  // namespace vantle
