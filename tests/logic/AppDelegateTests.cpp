#include "AppFixture.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Policy = Application::ActivationPolicy;

using AppDelegateTest = AppFixture;

TEST_F(AppDelegateTest, AFolderThatChangesOutsideIsWatchedFromThenOn) {
    launch();
    const Url other = Url::file("/home/user/Other");
    (void)files->createDirectory(other);
    domain->values["location"] = other.path();
    EXPECT_EQ(delegate->watcher().folder(), folder);
    domain->onChange();
    EXPECT_EQ(delegate->watcher().folder(), other);
    EXPECT_TRUE(delegate->watcher().isWatching());
}

TEST_F(AppDelegateTest, ASavedScreenshotIsShownOnThePanelAndInTheRecentList) {
    launch();
    save("shot.png");
    EXPECT_THAT(recentNames(), ElementsAre("shot.png"));
    EXPECT_TRUE(panel.isOnScreen);
    EXPECT_EQ(delegate->panel().state().captures.value().size(), 1u);
}

TEST_F(AppDelegateTest, AFileThatIsBackFromTheTrashIsNoNewCapture) {
    launch();
    save("shot.png");
    events.clear();
    auto& panelController = delegate->panel();
    const CapturePointer capture = panelController.state().captures.value().front();
    panelController.actions().trash(capture);
    time.advance(Seconds(1));
    panelController.actions().undoTrash(capture->id());
    time.advance(Seconds(3));
    EXPECT_THAT(recentNames(), ElementsAre("shot.png"));
    EXPECT_EQ(panelController.state().captures.value(), std::vector{capture});
}

TEST_F(AppDelegateTest, WithRecordingsOffANewRecordingChangesNothing) {
    defaults->stored["showRecordings"] = false;
    defaults->stored["copyOnCapture"] = true;
    defaults->stored["playSound"] = true;
    launch();
    events.clear();
    save("clip.mov");
    EXPECT_THAT(recentNames(), IsEmpty());
    EXPECT_THAT(events, IsEmpty());
    EXPECT_FALSE(panel.isOnScreen);
}

TEST_F(AppDelegateTest, ClipboardAndSoundComeBeforeThePanel) {
    defaults->stored["copyOnCapture"] = true;
    defaults->stored["playSound"] = true;
    launch();
    events.clear();
    save("shot.png");
    EXPECT_THAT(events,
                ElementsAre("copy file /home/user/Desktop/shot.png", "sound Pop", "panel made"));
}

TEST_F(AppDelegateTest, AnAutomaticallyCopiedCaptureIsTrashedCountingFromItsAppearance) {
    defaults->stored["copyOnCapture"] = true;
    defaults->stored["removeAfterUse"] = true;
    defaults->stored["deleteAfterUse"] = true;
    launch();
    media->addImage(folder.appending("shot.png"), Size{100, 50}, {100, 50});
    files->write(folder.appending("shot.png"), 1000, clock->now());
    while (!panel.isOnScreen) time.advance(Seconds(0.01));
    EXPECT_THAT(pasteboard->contents(), ElementsAre("image /home/user/Desktop/shot.png",
                                                    "file /home/user/Desktop/shot.png"));
    time.advance(Seconds(0.69));
    EXPECT_TRUE(delegate->panel().isVisible());
    time.advance(Seconds(0.01));
    EXPECT_FALSE(delegate->panel().isVisible());
    time.advance(Seconds(4.29));
    EXPECT_EQ(files->existence(folder.appending("shot.png")), FileManager::Existence::file);
    time.advance(Seconds(0.02));
    EXPECT_EQ(files->existence(folder.appending("shot.png")), FileManager::Existence::none);
}

TEST_F(AppDelegateTest, TheUpdaterIsMadeOnceAtLaunch) {
    launch();
    EXPECT_THAT(events, ElementsAre("updater made"));
    delegate->statusBar().onCheckForUpdates();
    EXPECT_THAT(events, ElementsAre("updater made", "update check"));
}

TEST_F(AppDelegateTest, AnEmptyCheckUpdatesVariableChecksAfterASecond) {
    environment["VANTLE_CHECK_UPDATES_NOW"] = "";
    launch();
    time.advance(Seconds(0.99));
    EXPECT_THAT(events, ElementsAre("updater made"));
    time.advance(Seconds(0.01));
    EXPECT_THAT(events, ElementsAre("updater made", "update check"));
}

TEST_F(AppDelegateTest, WithoutAnUpdaterAnUpdateCheckDoesNothing) {
    platform.makeUpdater = nullptr;
    environment["VANTLE_CHECK_UPDATES_NOW"] = "1";
    launch();
    time.advance(Seconds(2));
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(AppDelegateTest, ASecondCopyBringsTheFirstForwardAndQuits) {
    application->otherCopyRuns = true;
    EXPECT_TRUE(make().applicationWillFinishLaunching().has_value());
    EXPECT_EQ(application->otherCopyActivations, 1);
    EXPECT_EQ(application->terminations, 1);
    EXPECT_FALSE(delegate->watcher().isWatching());
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(AppDelegateTest, TheActivationPolicyIsAppliedAtLaunch) {
    defaults->stored["showInDock"] = true;
    launch();
    EXPECT_THAT(application->policies, ElementsAre(Policy::regular));
}

TEST_F(AppDelegateTest, ReopeningShowsTheOnboardingUntilItIsFinished) {
    offerWindows();
    defaults->stored["hasCompletedOnboarding"] = false;
    launch();
    EXPECT_FALSE(delegate->watcher().isWatching());
    EXPECT_TRUE(delegate->applicationShouldHandleReopen(true));
    EXPECT_THAT(events, ElementsAre("updater made", "onboarding made", "onboarding to front",
                                    "onboarding to front"));
}

TEST_F(AppDelegateTest, FinishingOnboardingStartsWatching) {
    offerWindows();
    defaults->stored["hasCompletedOnboarding"] = false;
    launch();
    finishOnboarding();
    EXPECT_THAT(Events(events.end() - 2, events.end()),
                ElementsAre("onboarding closed", "onboarding gone"));
    EXPECT_TRUE(delegate->watcher().isWatching());
    EXPECT_EQ(defaults->stored.at("hasCompletedOnboarding"), PreferenceValue(true));
}

TEST_F(AppDelegateTest, TheOnboardingIsFinishedAtOnceWithoutAWindow) {
    defaults->stored.clear();
    launch();
    EXPECT_TRUE(delegate->settings().hasCompletedOnboarding.value());
    EXPECT_TRUE(delegate->watcher().isWatching());
}

TEST_F(AppDelegateTest, AfterOnboardingReopeningShowsSettings) {
    offerWindows();
    launch();
    EXPECT_TRUE(delegate->applicationShouldHandleReopen(false));
    EXPECT_EQ(events.back(), "settings to front");
    EXPECT_EQ(application->activations, 1);
    application->onReopen(false);
    EXPECT_EQ(application->activations, 2);
}

TEST_F(AppDelegateTest, ShowingSettingsTwiceMakesOneWindow) {
    offerWindows();
    launch();
    events.clear();
    delegate->showSettings();
    delegate->showSettings();
    EXPECT_THAT(events, ElementsAre("settings made", "settings to front", "settings to front"));
}

TEST_F(AppDelegateTest, WindowsFollowAScreenThatBecameSmaller) {
    offerWindows();
    launch();
    screens->mainScreen = Screen{{{0, 0}, {1920, 1080}}, {{0, 0}, {1920, 1050}}};
    delegate->showSettings();
    screens->mainScreen = Screen{{{0, 0}, {1366, 768}}, {{0, 0}, {1366, 740}}};
    delegate->showSettings();
    EXPECT_THAT(windowSizes, ElementsAre(Size{480, 860}, Size{480, 680}));
}

TEST_F(AppDelegateTest, ShowingSettingsShowsWhatChangedOutside) {
    offerWindows();
    launch();
    delegate->showSettings();
    (void)files->createDirectory(Url::file("/elsewhere"));
    domain->values["location"] = std::string("/elsewhere");
    domain->values["show-thumbnail"] = false;
    loginItem->current = LoginItem::Status::enabled;
    EXPECT_EQ(delegate->settings().screenshotFolder.value(), folder);
    delegate->showSettings();
    EXPECT_EQ(delegate->settings().screenshotFolder.value(), Url::file("/elsewhere"));
    EXPECT_TRUE(delegate->settings().hideSystemThumbnail.value());
    EXPECT_TRUE(delegate->settings().launchAtLogin.value());
}

TEST_F(AppDelegateTest, OnboardingIsClosedAndShownAgainAsOneWindow) {
    offerWindows();
    defaults->stored["hasCompletedOnboarding"] = false;
    launch();
    delegate->showOnboarding();
    EXPECT_THAT(events, ElementsAre("updater made", "onboarding made", "onboarding to front",
                                    "onboarding to front"));
    EXPECT_FALSE(delegate->watcher().isWatching());
}

TEST_F(AppDelegateTest, ASnapshotOfTheOnboardingIsWrittenAfterASecond) {
    offerWindows();
    environment["VANTLE_SNAPSHOT_ONBOARDING"] = "/tmp/onboarding.png";
    defaults->stored["hasCompletedOnboarding"] = false;
    launch();
    delegate->showOnboarding();
    const Url picture = Url::file("/tmp/onboarding.png");
    time.advance(Seconds(0.9));
    EXPECT_EQ(files->contents(picture), "");
    time.advance(Seconds(0.2));
    EXPECT_EQ(files->contents(picture), "onboarding at 2");
}

TEST_F(AppDelegateTest, ThereIsNoSnapshotWithoutTheWindow) {
    offerWindows();
    environment["VANTLE_SNAPSHOT_ONBOARDING"] = "/tmp/onboarding.png";
    defaults->stored["hasCompletedOnboarding"] = false;
    launch();
    finishOnboarding();
    time.advance(Seconds(2));
    EXPECT_EQ(files->contents(Url::file("/tmp/onboarding.png")), "");
}

TEST_F(AppDelegateTest, WindowsFitTheVisibleFrameWithAMargin) {
    make();
    screens->screens = {{{{0, 0}, {1440, 900}}, {{0, 0}, {1440, 875}}}};
    screens->mainScreen = screens->screens.front();
    EXPECT_EQ(delegate->fit({480, 860}), (Size{480, 815}));
    screens->mainScreen.reset();
    EXPECT_EQ(delegate->fit({2000, 100}), (Size{1400, 100}));
    screens->screens.clear();
    EXPECT_EQ(delegate->fit({480, 860}), (Size{440, 800}));
}

TEST_F(AppDelegateTest, ChangingTheFolderWhilePausedDoesNotStartTheWatcher) {
    launch();
    delegate->statusBar().togglePause();
    EXPECT_FALSE(delegate->watcher().isWatching());
    const Url other = Url::file("/home/user/Shots");
    delegate->settings().setScreenshotFolder(other);
    EXPECT_FALSE(delegate->watcher().isWatching());
    delegate->statusBar().togglePause();
    EXPECT_TRUE(delegate->watcher().isWatching());
    EXPECT_EQ(delegate->watcher().folder(), other);
}

TEST_F(AppDelegateTest, ChangingTheFolderWatchesTheNewOne) {
    launch();
    const Url other = Url::file("/home/user/Shots");
    delegate->settings().setScreenshotFolder(other);
    time.settle();
    EXPECT_EQ(delegate->watcher().folder(), other);
    const int listings = files->listings();
    delegate->settings().screenshotFolder.set(other);  // equal: dropped
    time.settle();
    EXPECT_EQ(files->listings(), listings);
}

TEST_F(AppDelegateTest, TheStatusBarListsRecentAndShowsAgain) {
    launch();
    save("a.png");
    delegate->panel().dismiss();
    time.advance(Seconds(1));
    const auto listed = delegate->statusBar().recent();
    ASSERT_EQ(listed.size(), 1u);
    delegate->statusBar().onShow(listed.front());
    time.settle();
    EXPECT_TRUE(delegate->panel().isVisible());
}

TEST_F(AppDelegateTest, CallbacksDoNothingAfterTheDelegateHasGone) {
    launch();
    const auto recent = delegate->statusBar().recent;
    const auto onShow = delegate->statusBar().onShow;
    const auto onSettings = delegate->statusBar().onSettings;
    const auto onPause = delegate->statusBar().onPause;
    const auto reopen = application->onReopen;
    const auto request = application->onRequest;
    const auto shown = Capture::create(folder.appending("a.png"), Date{});
    delegate.reset();
    EXPECT_THAT(recent(), IsEmpty());
    onShow(shown);
    onSettings();
    onPause(true);
    reopen(true);
    platform.vantleShowDemo.notify();
    EXPECT_FALSE(request({"settings", {}}));
    EXPECT_FALSE(panel.isOnScreen);
}

}  // namespace
}  // namespace vantle
