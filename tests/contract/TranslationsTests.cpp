#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>

#include "platform/qt/translations/Translations.h"
#include "support/Localization.h"

namespace vantle {
namespace {

const QString folder = QStringLiteral(VANTLE_TRANSLATIONS);

QString taken(const QStringList& languages) {
    return Translations(folder, languages).language();
}

std::string quit() {
    return localized("StatusBarController", "Quit Vantle");
}

TEST(Translations, UsesTheFirstAvailableLanguage) {
    EXPECT_EQ(taken({"fr", "de"}), "fr");
    EXPECT_EQ(taken({"tlh", "ja", "de"}), "ja");
}

TEST(Translations, ALanguageOfACountryFallsBackToTheLanguage) {
    EXPECT_EQ(taken({"de-AT"}), "de");
    EXPECT_EQ(taken({"de-Latn-AT"}), "de");
}

TEST(Translations, EnglishDiffersFromTheSourcesOnlyForTheDesktop) {
    for (const QStringList& languages : {QStringList{"en-US", "en", "de"}, {"C", "de"}}) {
        const Translations translations(folder, languages);
        EXPECT_EQ(translations.language(), "en");
        EXPECT_EQ(quit(), "Quit Vantle");
        EXPECT_EQ(localized("TileActions", "Reveal in Finder"), "Show in file manager");
    }
}

TEST(Translations, UsesEnglishIfNoLanguageOfTheUserIsAvailable) {
    EXPECT_EQ(taken({"tlh"}), "en");
    EXPECT_EQ(taken({}), "en");
}

TEST(Translations, UsesTheSourceTextsWithoutAnyFile) {
    EXPECT_EQ(Translations(QStringLiteral("/nowhere"), {"de"}).language(), "");
}

TEST(Translations, TranslatesTheLogicDuringItsLifetime) {
    {
        const Translations translations(folder, {"de"});
        EXPECT_EQ(quit(), "Vantle beenden");
        EXPECT_EQ(localized("StatusBarController", "of nobody"), "of nobody");
    }
    EXPECT_EQ(quit(), "Quit Vantle");
}

TEST(Translations, TranslatesTheViewsAfterItIsInstalled) {
    const auto dismiss = [] { return QCoreApplication::translate("CloseButton", "Dismiss"); };
    {
        Translations translations(folder, {"ja"});
        EXPECT_EQ(dismiss(), QStringLiteral("Dismiss"));
        translations.install();
        EXPECT_EQ(dismiss(), QStringLiteral("閉じる"));
    }
    EXPECT_EQ(dismiss(), QStringLiteral("Dismiss"));
}

TEST(Translations, PluralsFollowTheNumber) {
    const auto selected = [](int count) {
        return QCoreApplication::translate("SelectionBar", "%n selected", nullptr, count);
    };
    Translations translations(folder, {"fr"});
    translations.install();
    EXPECT_EQ(selected(1), QStringLiteral("1 sélectionnée"));
    EXPECT_EQ(selected(3), QStringLiteral("3 sélectionnées"));
}

TEST(Translations, EachAvailableLanguageCanBeUsed) {
    const auto files = QDir(folder).entryList({QStringLiteral("vantle_*.qm")});
    EXPECT_EQ(files.size(), 4);
    for (QString file : files) {
        const QString language = file.remove("vantle_").remove(".qm");
        EXPECT_EQ(taken({language}), language);
    }
}

}  // namespace
}  // namespace vantle
