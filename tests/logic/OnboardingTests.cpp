#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/FakeEnvironment.h"
#include "fakes/SettingsOnFakes.h"
#include "screens/MissingTrayAdvice.h"
#include "screens/OnboardingSteps.h"
#include "screens/OnboardingSummary.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class OnboardingTest : public testing::Test, protected fakes::SettingsOnFakes {
protected:
    OnboardingSteps at(int step) {
        return OnboardingSteps(
            settings, [this] { ++finished; }, step);
    }
    static int initialStep(std::optional<std::string> variable) {
        fakes::FakeEnvironment environment;
        if (variable) environment["VANTLE_ONBOARDING_STEP"] = *variable;
        return OnboardingSteps::initialStep(environment);
    }
    std::vector<std::string> summary() const {
        std::vector<std::string> texts;
        for (const auto& row : onboardingSummary(settings)) texts.push_back(row.text);
        return texts;
    }

    int finished = 0;
};

TEST_F(OnboardingTest, TheVariableNamesTheFirstStep) {
    EXPECT_EQ(initialStep(std::nullopt), 0);
    EXPECT_EQ(initialStep("0"), 0);
    EXPECT_EQ(initialStep("1"), 1);
    EXPECT_EQ(initialStep("2"), 2);
    EXPECT_EQ(initialStep("+2"), 2);
    EXPECT_EQ(initialStep("02"), 2);
}

TEST_F(OnboardingTest, AnInvalidVariableMeansTheFirstStep) {
    for (const auto* text : {"x", "", "1.5", "2x", " 2", "0x2", "+-1", "-", "+"})
        EXPECT_EQ(initialStep(text), 0) << text;
}

TEST_F(OnboardingTest, AStepOutOfRangeBecomesTheNearestOne) {
    EXPECT_EQ(initialStep("3"), 2);
    EXPECT_EQ(initialStep("-1"), 0);
    EXPECT_EQ(initialStep("99999999999999999999"), 2);
    EXPECT_EQ(initialStep("-99999999999999999999"), 0);
    EXPECT_EQ(at(7).step(), 2);
    EXPECT_EQ(at(-7).step(), 0);
}

TEST_F(OnboardingTest, TheForwardButtonNamesTheNextAction) {
    OnboardingSteps steps = at(0);
    EXPECT_EQ(steps.forwardTitle(), "Get Started");
    steps.forward();
    EXPECT_EQ(steps.forwardTitle(), "Next");
    steps.forward();
    EXPECT_EQ(steps.forwardTitle(), "Start Using Vantle");
    EXPECT_EQ(finished, 0);
    steps.forward();
    EXPECT_EQ(finished, 1);
    EXPECT_EQ(steps.step(), 2);
}

TEST_F(OnboardingTest, BackFromStep1ReturnsToStep0) {
    OnboardingSteps steps = at(1);
    EXPECT_TRUE(steps.offersBack());
    steps.back();
    EXPECT_EQ(steps.step(), 0);
    EXPECT_FALSE(steps.offersBack());
    steps.back();
    EXPECT_EQ(steps.step(), 0);
}

TEST_F(OnboardingTest, AppearingAppliesTheRecommendedSettings) {
    settings.dismissAfter.set(20);
    settings.removeAfterUse.set(false);
    settings.deleteAfterUse.set(true);
    settings.corner.set(PanelCorner::topLeft);
    settings.showRecordings.set(false);
    at(0).appear();
    EXPECT_EQ(settings.dismissAfter.value(), 0);
    EXPECT_TRUE(settings.removeAfterUse.value());
    EXPECT_FALSE(settings.deleteAfterUse.value());
    EXPECT_EQ(settings.corner.value(), PanelCorner::bottomRight);
    EXPECT_TRUE(settings.showRecordings.value());
    EXPECT_TRUE(settings.hideSystemThumbnail.value());
    EXPECT_TRUE(settings.launchAtLogin.value());
    EXPECT_FALSE(settings.hasCompletedOnboarding.value());
}

TEST_F(OnboardingTest, CreatingItChangesNothing) {
    at(1);
    EXPECT_TRUE(defaults.stored.empty());
    EXPECT_FALSE(settings.launchAtLogin.value());
}

TEST_F(OnboardingTest, TheSummaryListsTheChoices) {
    settings.setScreenshotFolder(Url::file("/home/user/Pictures/Screenshots"));
    settings.dismissAfter.set(30.7);
    settings.corner.set(PanelCorner::topLeft);
    EXPECT_THAT(summary(),
                ElementsAre("Saving to Screenshots folder", "Stays for 30 seconds unless pinned",
                            "Panel in the Top Left", "macOS thumbnail still shown"));
}

TEST_F(OnboardingTest, TheSummaryReadsStaysUntilDismissedWithoutATimer) {
    at(0).appear();
    EXPECT_THAT(summary(), ElementsAre("Saving to Desktop folder", "Stays until dismissed",
                                       "Panel in the Bottom Right", "macOS thumbnail hidden"));
}

TEST_F(OnboardingTest, TheOutlookNamesTheCorner) {
    settings.corner.set(PanelCorner::topRight);
    EXPECT_EQ(onboardingOutlook(settings, Tray::isThere),
              "Vantle lives in your menu bar. Take a screenshot with ⇧⌘4 and it will slide into "
              "the Top Right corner. Take another and they line up together.");
}

TEST_F(OnboardingTest, TheOutlookSaysHowToReachTheSettingsWithoutATray) {
    const std::string outlook = onboardingOutlook(settings, Tray::isMissing);
    EXPECT_THAT(outlook, HasSubstr("the Bottom Right corner"));
    EXPECT_THAT(outlook, HasSubstr("has no tray"));
    EXPECT_THAT(outlook, HasSubstr("start Vantle again"));
}

TEST(MissingTrayAdviceTest, NamesTheExtensionAndItsPackage) {
    const std::string advice = missingTrayAdvice(TrayExtension{"Tray", "shell-tray", false});
    EXPECT_THAT(advice, HasSubstr("“Tray”"));
    EXPECT_THAT(advice, HasSubstr("Install the package shell-tray"));
}

TEST(MissingTrayAdviceTest, AnInstalledExtensionOnlyNeedsToBeSwitchedOn) {
    const std::string advice = missingTrayAdvice(TrayExtension{"Tray", "shell-tray", true});
    EXPECT_THAT(advice, HasSubstr("Turn it on"));
    EXPECT_THAT(advice, Not(HasSubstr("Install the package")));
}

TEST(MissingTrayAdviceTest, ThereIsNoAdviceForAnUnknownDesktop) {
    EXPECT_EQ(missingTrayAdvice(std::nullopt), "");
}

}  // namespace
}  // namespace vantle
