#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>

#include "ScreenStage.h"
#include "panel/views/Appearance.h"

namespace vantle {
namespace {

class OnboardingViewTest : public testing::Test, protected ScreenStage {
protected:
    void expectTexts(const QStringList& expected) {
        for (const QString& text : expected) EXPECT_TRUE(has(text)) << text.toStdString();
    }
};

TEST_F(OnboardingViewTest, TheWelcomeStep) {
    openOnboarding();
    expectTexts({QStringLiteral("Welcome to Vantle"),
                 QStringLiteral("Screenshots shouldn't vanish before you can use them.\nVantle "
                                "keeps your latest screenshots and recordings in a glass panel in "
                                "the corner until you're done with them."),
                 QStringLiteral("Drag a preview straight into Slack, Mail, Figma or anywhere else"),
                 QStringLiteral("Take several in a row and they line up side by side"),
                 QStringLiteral("Stays until you dismiss it, or on a timer if you prefer"),
                 QStringLiteral("Get Started")});
    EXPECT_FALSE(has(QStringLiteral("Back")));
}

TEST_F(OnboardingViewTest, TheSettingsStepChecksTheFolder) {
    openOnboarding(1);
    expectTexts({QStringLiteral("Set up Vantle"),
                 QStringLiteral("Recommended settings are already selected"),
                 QStringLiteral("Vantle can read this folder"),
                 QStringLiteral("macOS asks once for Desktop, Documents and Downloads. Pictures "
                                "needs no permission."),
                 QStringLiteral("Check again"), QStringLiteral("Captures"),
                 QStringLiteral("Panel & app"), QStringLiteral("Back"), QStringLiteral("Next")});
}

TEST_F(OnboardingViewTest, AFolderThatIsRefusedOffersThePrivacySettings) {
    files->failListing(Url::file("/home/user/Desktop"), EACCES);
    openOnboarding(1);
    expectTexts({QStringLiteral("macOS is blocking access to this folder"),
                 QStringLiteral("Allow Vantle under Privacy & Security → Files and Folders, then "
                                "check again.")});
    click(QStringLiteral("Open Privacy Settings"));
    EXPECT_EQ(privacySettings->opened.size(), 1u);
    files->failListing(Url::file("/home/user/Desktop"), 0);
    click(QStringLiteral("Grant access"));
    expectTexts({QStringLiteral("Vantle can read this folder")});
}

TEST_F(OnboardingViewTest, TheDoneStep) {
    openOnboarding(2);
    expectTexts(
        {QStringLiteral("You're all set"),
         QStringLiteral("Vantle lives in your menu bar. Take a screenshot with ⇧⌘4 and it "
                        "will slide into the Bottom Right corner. Take another and they "
                        "line up together."),
         QStringLiteral("Saving to Desktop folder"), QStringLiteral("Stays until dismissed"),
         QStringLiteral("Panel in the Bottom Right"), QStringLiteral("macOS thumbnail hidden"),
         QStringLiteral("Back"), QStringLiteral("Start Using Vantle")});
    click(QStringLiteral("Show me a sample"));
    EXPECT_EQ(samples, 1);
}

TEST_F(OnboardingViewTest, TheDoneStepSaysThatThereIsNoTrayAndHowToGetOne) {
    statusItem->hasTray = false;
    platform.trayExtension = [] { return TrayExtension{"Tray", "shell-tray", false}; };
    openOnboarding(2);
    expectTexts(
        {QStringLiteral("You're all set"),
         QStringLiteral("Take a screenshot and it will slide into the Bottom Right corner. Take "
                        "another and they line up together. Your desktop has no tray for "
                        "Vantle's icon. To open the settings, start Vantle again."),
         QStringLiteral("The extension “Tray” provides a tray. Install the package shell-tray, log "
                        "out and in again, then turn it on in Extensions."),
         QStringLiteral("Start Using Vantle")});
}

TEST_F(OnboardingViewTest, OpeningItAppliesTheRecommendedSettings) {
    settings->dismissAfter.set(20);
    settings->corner.set(PanelCorner::topLeft);
    openOnboarding();
    EXPECT_EQ(settings->dismissAfter.value(), 0);
    EXPECT_EQ(settings->corner.value(), PanelCorner::bottomRight);
    EXPECT_TRUE(settings->hideSystemThumbnail.value());
    EXPECT_TRUE(settings->launchAtLogin.value());
    EXPECT_FALSE(settings->hasCompletedOnboarding.value());
}

TEST_F(OnboardingViewTest, ShowsTheRealStateIfTheSystemRefusesASetting) {
    preferences->obstacles["show-thumbnail"] = "GNOME always shows its own preview.";
    openOnboarding(2);
    EXPECT_FALSE(settings->hideSystemThumbnail.value());
    EXPECT_TRUE(has(QStringLiteral("macOS thumbnail still shown")));
}

TEST_F(OnboardingViewTest, ItsButtonsChangeTheStep) {
    openOnboarding();
    click(QStringLiteral("Get Started"));
    EXPECT_TRUE(has(QStringLiteral("Set up Vantle")));
    EXPECT_FALSE(has(QStringLiteral("Welcome to Vantle")));
    click(QStringLiteral("Back"));
    EXPECT_TRUE(has(QStringLiteral("Welcome to Vantle")));
    EXPECT_FALSE(has(QStringLiteral("Back")));
    click(QStringLiteral("Get Started"));
    click(QStringLiteral("Next"));
    EXPECT_TRUE(has(QStringLiteral("You're all set")));
    EXPECT_EQ(finished, 0);
    click(QStringLiteral("Start Using Vantle"));
    EXPECT_EQ(finished, 1);
}

TEST_F(OnboardingViewTest, ReturnPressesTheForwardButtonWithAnyFocus) {
    openOnboarding();
    press(Qt::Key_Return);
    ASSERT_TRUE(has(QStringLiteral("Set up Vantle")));
    named(QStringLiteral("Also show screen recordings")).forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    ASSERT_TRUE(has(QStringLiteral("You're all set")));
    EXPECT_TRUE(settings->showRecordings.value());
    press(Qt::Key_Enter);
    press(Qt::Key_Enter);
    EXPECT_EQ(finished, 1);
}

TEST_F(OnboardingViewTest, ReturnOnBackGoesBack) {
    openOnboarding(1);
    named(QStringLiteral("Back")).forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    EXPECT_TRUE(has(QStringLiteral("Welcome to Vantle")));
}

TEST_F(OnboardingViewTest, ChoicesAreInTheSummaryAtOnce) {
    openOnboarding(1);
    click(QStringLiteral("Keep captures until dismissed (recommended)"));
    click(QStringLiteral("Hide the built-in macOS thumbnail"));
    settings->corner.set(PanelCorner::topLeft);
    click(QStringLiteral("Next"));
    expectTexts({QStringLiteral("Stays for 10 seconds unless pinned"),
                 QStringLiteral("Panel in the Top Left"),
                 QStringLiteral("macOS thumbnail still shown")});
}

TEST_F(OnboardingViewTest, KeepsItsStepWhenItIsClosedAndShownAgain) {
    openOnboarding();
    click(QStringLiteral("Get Started"));
    press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(window().isVisible());
    settings->corner.set(PanelCorner::topRight);
    window().makeKeyAndOrderFront();
    settle();
    EXPECT_TRUE(has(QStringLiteral("Set up Vantle")));
    // The window shows this corner, so it must be the setting.
    EXPECT_EQ(settings->corner.value(), PanelCorner::bottomRight);
}

TEST_F(OnboardingViewTest, AStepOutOfRangeBecomesTheNearestOne) {
    openOnboarding(9);
    EXPECT_TRUE(has(QStringLiteral("You're all set")));
    openOnboarding(-9);
    EXPECT_TRUE(has(QStringLiteral("Welcome to Vantle")));
}

TEST_F(OnboardingViewTest, TheNextStepArrivesFromItsSideOnASpring) {
    openOnboarding();
    const QQuickItem& content = *view().findChild<QQuickItem*>(QStringLiteral("content"));
    rest();
    EXPECT_EQ(content.opacity(), 1);
    click(QStringLiteral("Get Started"));
    EXPECT_LT(content.opacity(), 0.2);
    EXPECT_GT(content.x(), 40);
    rest();
    EXPECT_EQ(content.opacity(), 1);
    EXPECT_EQ(content.x(), 0);
    click(QStringLiteral("Back"));
    EXPECT_LT(content.x(), -40);
}

TEST_F(OnboardingViewTest, OnlyFadesWithReducedMotion) {
    DesktopAppearance desktop;
    desktop.look.set({.reducesMotion = true});
    Appearance::follow(&desktop);
    openOnboarding();
    const QQuickItem& content = *view().findChild<QQuickItem*>(QStringLiteral("content"));
    click(QStringLiteral("Get Started"));
    EXPECT_LT(content.opacity(), 0.2);
    EXPECT_EQ(content.x(), 0);
    close();
    Appearance::follow(nullptr);
}

TEST_F(OnboardingViewTest, KeysScrollContentsThatDoNotFit) {
    openOnboarding(0, {480, 300});
    QQuickItem& area = *view().findChild<QQuickItem*>(QStringLiteral("area"));
    const auto scrolled = [&] { return area.property("contentY").toDouble(); };
    press(Qt::Key_Down);
    EXPECT_EQ(scrolled(), 40);
    press(Qt::Key_End);
    EXPECT_EQ(scrolled(), area.property("contentHeight").toDouble() - area.height());
    press(Qt::Key_PageUp);
    press(Qt::Key_Home);
    press(Qt::Key_Up);
    EXPECT_EQ(scrolled(), 0);
}

TEST_F(OnboardingViewTest, ASnapshotShowsTheVisibleStep) {
    openOnboarding(1);
    const auto settingsStep = window().snapshot(2);
    click(QStringLiteral("Next"));
    const auto doneStep = window().snapshot(2);
    ASSERT_TRUE(settingsStep && doneStep);
    EXPECT_NE(*settingsStep, *doneStep);
    EXPECT_EQ(QImage::fromData(QByteArray::fromStdString(*doneStep), "PNG").size(),
              QSize(1200, 1800));
}

}  // namespace
}  // namespace vantle
