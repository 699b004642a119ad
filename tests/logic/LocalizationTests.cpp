// Every text that users read requests a translation before its placeholders are filled.

#include <algorithm>

#include "AppFixture.h"
#include "app/CommandLine.h"
#include "fakes/Pseudolanguage.h"
#include "screens/BehaviorControls.h"
#include "screens/FolderAccessRow.h"
#include "screens/MissingTrayAdvice.h"
#include "screens/OnboardingSummary.h"
#include "support/Localization.h"

namespace vantle {
namespace {

using fakes::Pseudolanguage;
using testing::AllOf;
using testing::AnyOf;
using testing::Each;
using testing::HasSubstr;

MATCHER(IsTranslated, "") {
    return Pseudolanguage::isTranslated(arg);
}

TEST(Localization, ATextIsUnchangedWithoutATranslator) {
    EXPECT_EQ(localized("StatusBarController", "Quit Vantle"), "Quit Vantle");
}

TEST(Localization, TheTranslatorGetsTheContextAndTheText) {
    setTranslator(
        [](const char* context, const char* text) { return std::string(context) + ": " + text; });
    EXPECT_EQ(localized("Menu", "Quit"), "Menu: Quit");
    setTranslator({});
    EXPECT_EQ(localized("Menu", "Quit"), "Quit");
}

TEST(Localization, AMarkedTextIsTheText) {
    EXPECT_STREQ(marked("Menu", "Quit"), "Quit");
}

TEST(Localization, APatternIsFilledInTheOrderOfItsPlaceholders) {
    EXPECT_EQ(filled("%1 of %2", {"one", "two"}), "one of two");
    EXPECT_EQ(filled("%2, %1, %2", {"one", "two"}), "two, one, two");
    EXPECT_EQ(filled("nothing", {"one"}), "nothing");
}

TEST(Localization, FilledInTextIsNotFilledAgain) {
    EXPECT_EQ(filled("%1 and %2", {"%2", "two"}), "%2 and two");
}

TEST(Localization, APercentSignThatNamesNoValueStays) {
    EXPECT_EQ(filled("100 % of %1", {"one"}), "100 % of one");
    EXPECT_EQ(filled("%0 %3 %n %", {"one"}), "%0 %3 %n %");
}

TEST(Localization, TheHelpIsTranslatedExceptForTheOptions) {
    const std::string inEnglish = helpText();
    const Pseudolanguage language;
    const std::string help = helpText();
    EXPECT_EQ(std::ranges::count(inEnglish, '\n'), std::ranges::count(help, '\n'));
    EXPECT_THAT(help, AllOf(HasSubstr("  --pause         ⟦stop watching until --resume⟧\n"),
                            HasSubstr("⟦Usage: vantle [OPTION]"), HasSubstr("⟦Exit status:")));
}

TEST(Localization, AWrongCommandLineIsExplainedInTheUsersLanguage) {
    const Pseudolanguage language;
    const auto line = parseCommandLine({"--nonsense"}, Url::file("/"));
    EXPECT_EQ(line.text, "vantle: ⟦unknown option \"--nonsense\"⟧\n⟦Try \"vantle --help\".⟧");
}

TEST(Localization, TheFolderAccessIsTranslatedInEachState) {
    const Pseudolanguage language;
    for (const auto state : {AccessState::unknown, AccessState::granted, AccessState::denied}) {
        const auto contents = FolderAccessRow::contents(state);
        EXPECT_THAT(contents.title, IsTranslated());
        EXPECT_THAT(contents.caption, IsTranslated());
        for (const auto& button : contents.buttons) EXPECT_THAT(button.title, IsTranslated());
    }
}

TEST(Localization, TheCornersAreTranslated) {
    const Pseudolanguage language;
    for (const auto corner : allPanelCorners) EXPECT_THAT(label(corner), IsTranslated());
}

class LocalizedApp : public AppFixture {
protected:
    const Pseudolanguage language;
};

TEST_F(LocalizedApp, TheMenuIsTranslatedExceptForFileNames) {
    launch();
    EXPECT_THAT(statusItem->open(), Each(AnyOf("-", IsTranslated())));
}

TEST_F(LocalizedApp, AlertsAreTranslated) {
    launch();
    delegate->handleWatchError(WatchError::accessDenied());
    files->makeReadOnly(Url::file("/home/user"));
    files->removeDirectory(folder);
    time.settle();
    ASSERT_EQ(alerts->shown.size(), 2u);
    for (const auto& alert : alerts->shown) {
        EXPECT_THAT(alert.messageText, IsTranslated());
        EXPECT_THAT(alert.informativeText, IsTranslated());
        EXPECT_THAT(alert.buttons, Each(IsTranslated()));
    }
}

TEST_F(LocalizedApp, TheSummaryOfTheOnboardingIsTranslated) {
    launch();
    for (const auto& row : onboardingSummary(delegate->settings()))
        EXPECT_THAT(row.text, IsTranslated());
    for (const auto tray : {Tray::isThere, Tray::isMissing})
        EXPECT_THAT(onboardingOutlook(delegate->settings(), tray), IsTranslated());
    for (const bool isInstalled : {false, true})
        EXPECT_THAT(missingTrayAdvice(TrayExtension{"Tray", "tray", isInstalled}), IsTranslated());
}

TEST_F(LocalizedApp, TheLengthOfTheCountdownIsTranslated) {
    launch();
    delegate->settings().dismissAfter.set(25);
    const BehaviorControls controls(delegate->settings(), *platform.scheduler);
    EXPECT_EQ(controls.dismissAfterText(), "⟦25 seconds⟧");
}

}  // namespace
}  // namespace vantle
