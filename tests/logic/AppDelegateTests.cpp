#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/AppDelegate.h"
#include "fakes/CapturedLog.h"
#include "fakes/FakeApplication.h"
#include "fakes/FakeFileOpener.h"
#include "fakes/FakeFileSystem.h"
#include "fakes/FakeLoginItem.h"
#include "fakes/FakeMediaLoader.h"
#include "fakes/FakePanelWindow.h"
#include "fakes/FakePasteboard.h"
#include "fakes/FakePreferencesDomain.h"
#include "fakes/FakeProcessLauncher.h"
#include "fakes/FakeScreens.h"
#include "fakes/FakeSharingServicePicker.h"
#include "fakes/FakeTrash.h"
#include "fakes/FakeUserDefaults.h"
#include "fakes/VirtualTime.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Policy = Application::ActivationPolicy;

const Url folder = Url::file("/home/user/Desktop");

/// What happened, in order, across services.
using Events = std::vector<std::string>;

class RecordingSounds final : public SoundPlayer {
public:
    explicit RecordingSounds(Events& events) : events_(events) {}
    void play(std::string_view name) override { events_.push_back("sound " + std::string(name)); }

private:
    Events& events_;
};

class RecordingUpdater final : public Updater {
public:
    explicit RecordingUpdater(Events& events) : events_(events) {
        events_.push_back("updater made");
    }
    void checkForUpdates() override { events_.push_back("update check"); }

private:
    Events& events_;
};

class RecordingWindow final : public Window {
public:
    RecordingWindow(Events& events, std::string name) : events_(events), name_(std::move(name)) {
        events_.push_back(name_ + " made");
    }
    void makeKeyAndOrderFront() override { events_.push_back(name_ + " to front"); }
    void close() override { events_.push_back(name_ + " closed"); }

private:
    Events& events_;
    std::string name_;
};

class AppDelegateTest : public testing::Test {
protected:
    AppDelegateTest() {
        const auto add = [](auto& slot, auto service) {
            auto& reference = *service;
            slot = std::move(service);
            return &reference;
        };
        platform.environment = [this](const std::string& name) -> std::optional<std::string> {
            const auto found = environment.find(name);
            if (found == environment.end()) return std::nullopt;
            return found->second;
        };
        auto* scheduler = add(platform.scheduler, std::make_unique<fakes::ManualScheduler>(time));
        clock = add(platform.clock, std::make_unique<fakes::VirtualClock>(time));
        auto* queue = add(platform.watcherQueue, std::make_unique<fakes::ManualQueue>(time));
        auto fileSystem = std::make_unique<fakes::FakeFileSystem>(*queue);
        files = fileSystem.get();
        (void)files->createDirectory(folder);
        platform.directoryEvents = std::make_unique<EventsOf>(*fileSystem);
        platform.files = std::move(fileSystem);
        add(platform.media, std::make_unique<fakes::FakeMediaLoader>());
        defaults = add(platform.defaults, std::make_unique<fakes::FakeUserDefaults>());
        domain =
            add(platform.screenshotPreferences, std::make_unique<fakes::FakePreferencesDomain>());
        add(platform.launcher, std::make_unique<fakes::FakeProcessLauncher>());
        add(platform.loginItem, std::make_unique<fakes::FakeLoginItem>());
        screens = add(platform.screens, std::make_unique<fakes::FakeScreens>());
        application = add(platform.application, std::make_unique<fakes::FakeApplication>());
        platform.opener = std::make_unique<fakes::FakeFileOpener>();
        pasteboard = add(platform.pasteboard, std::make_unique<fakes::FakePasteboard>(*files));
        platform.sharing = std::make_unique<fakes::FakeSharingServicePicker>();
        platform.trash = std::make_unique<fakes::FakeTrash>(*scheduler, *files);
        platform.sounds = std::make_unique<RecordingSounds>(events);
        platform.makeUpdater = [this] { return std::make_unique<RecordingUpdater>(events); };
        defaults->stored["hasCompletedOnboarding"] = true;
    }

    /// The fake file system is two services in one.
    class EventsOf final : public DirectoryEvents {
    public:
        explicit EventsOf(DirectoryEvents& events) : events_(events) {}
        Result<std::shared_ptr<DirectoryEventSource>> open(const Url& watched,
                                                           Handler handler) override {
            return events_.open(watched, std::move(handler));
        }

    private:
        DirectoryEvents& events_;
    };

    AppDelegate& make() {
        pasteboard->onWrite = [this] { events.push_back("copy " + pasteboard->contents().back()); };
        delegate = AppDelegate::create(platform, [this](PanelState&, Settings&, CardActions) {
            events.push_back("panel made");
            return std::make_unique<fakes::FakePanelWindow>(panel);
        });
        return *delegate;
    }

    AppDelegate& launch() {
        AppDelegate& launched = make();
        EXPECT_TRUE(launched.applicationWillFinishLaunching());
        launched.applicationDidFinishLaunching();
        time.settle();
        return launched;
    }

    void save(const std::string& name) {
        files->write(folder.appending(name), 1000, clock->now());
        time.advance(Seconds(0.3));
    }

    std::vector<std::string> recentNames() const {
        std::vector<std::string> names;
        for (const auto& capture : delegate->recent()) names.push_back(capture->fileName());
        return names;
    }

    void offerWindows() {
        platform.makeSettingsWindow = [this](Size size) {
            windowSizes.push_back(size);
            return std::make_unique<RecordingWindow>(events, "settings");
        };
        platform.makeOnboardingWindow = [this](Size size, std::function<void()> finish) {
            windowSizes.push_back(size);
            finishOnboarding = std::move(finish);
            return std::make_unique<RecordingWindow>(events, "onboarding");
        };
    }

    fakes::VirtualTime time;
    Events events;
    std::map<std::string, std::string> environment;
    fakes::FakePanelWindow::Record panel;
    Platform platform;
    fakes::VirtualClock* clock = nullptr;
    fakes::FakeFileSystem* files = nullptr;
    fakes::FakeUserDefaults* defaults = nullptr;
    fakes::FakePreferencesDomain* domain = nullptr;
    fakes::FakeScreens* screens = nullptr;
    fakes::FakePasteboard* pasteboard = nullptr;
    fakes::FakeApplication* application = nullptr;
    std::vector<Size> windowSizes;
    std::function<void()> finishOnboarding;
    std::shared_ptr<AppDelegate> delegate;
};

TEST_F(AppDelegateTest, ASavedScreenshotComesToThePanelAndTheRecentList) {
    launch();
    save("shot.png");
    EXPECT_THAT(recentNames(), ElementsAre("shot.png"));
    EXPECT_TRUE(panel.isOnScreen);
    EXPECT_EQ(delegate->panel().state().captures.value().size(), 1u);
}

TEST_F(AppDelegateTest, TheLauncherCanGiveThePanelTheKeyboard) {
    launch();
    EXPECT_TRUE(application->onAction("focus-panel"));
    EXPECT_EQ(panel.timesKeyboardTaken, 0);
    save("shot.png");
    EXPECT_TRUE(application->onAction("focus-panel"));
    EXPECT_EQ(panel.timesKeyboardTaken, 1);
    EXPECT_FALSE(application->onAction("dance"));
}

TEST_F(AppDelegateTest, The21stCapturePushesTheOldestOutOfRecent) {
    launch();
    for (int i = 1; i <= 21; ++i) save(std::to_string(i) + ".png");
    EXPECT_EQ(recentNames().size(), 20u);
    EXPECT_EQ(recentNames().front(), "21.png");
    EXPECT_EQ(recentNames().back(), "2.png");
}

TEST_F(AppDelegateTest, AnEqualCaptureMovesToTheFrontOfRecent) {
    launch();
    save("a.png");
    save("b.png");
    files->remove(folder.appending("a.png"));
    time.settle();
    save("a.png");
    EXPECT_THAT(recentNames(), ElementsAre("a.png", "b.png"));
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

TEST_F(AppDelegateTest, ACaptureThatIsCopiedAtOnceLeavesAndGoesToTheTrashFromWhenItAppeared) {
    defaults->stored["copyOnCapture"] = true;
    defaults->stored["removeAfterUse"] = true;
    defaults->stored["deleteAfterUse"] = true;
    launch();
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

TEST_F(AppDelegateTest, WithoutASoundServiceTheCaptureIsShownAllTheSame) {
    platform.sounds.reset();
    defaults->stored["playSound"] = true;
    launch();
    save("shot.png");
    EXPECT_TRUE(panel.isOnScreen);
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
    EXPECT_FALSE(make().applicationWillFinishLaunching());
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

TEST_F(AppDelegateTest, BeforeOnboardingIsFinishedReopeningShowsIt) {
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
    EXPECT_EQ(events.back(), "onboarding closed");
    EXPECT_TRUE(delegate->watcher().isWatching());
    EXPECT_EQ(defaults->stored["hasCompletedOnboarding"], PreferenceValue(true));
}

TEST_F(AppDelegateTest, WithoutAnOnboardingWindowItIsFinishedAtOnce) {
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

TEST_F(AppDelegateTest, CallbacksDoNothingOnceTheDelegateHasGone) {
    launch();
    const StatusBarController statusBar = delegate->statusBar();
    const auto reopen = application->onReopen;
    const auto shown = Capture::create(folder.appending("a.png"), Date{});
    delegate.reset();
    EXPECT_THAT(statusBar.recent(), IsEmpty());
    statusBar.onShow(shown);
    statusBar.onSettings();
    statusBar.onPause(true);
    reopen(true);
    EXPECT_FALSE(panel.isOnScreen);
}

TEST_F(AppDelegateTest, AMissingFolderIsMadeAgainSilently) {
    fakes::CapturedLog log;
    launch();
    files->removeDirectory(folder);
    time.settle();
    EXPECT_EQ(files->existence(folder), FileManager::Existence::directory);
    EXPECT_TRUE(delegate->watcher().isWatching());
    save("shot.png");
    EXPECT_TRUE(panel.isOnScreen);
    EXPECT_THAT(log.lines(), IsEmpty());

    files->removeDirectory(folder);  // repaired again: the first loss is not remembered
    time.settle();
    EXPECT_TRUE(delegate->watcher().isWatching());
}

TEST_F(AppDelegateTest, AMissingFolderThatCannotBeMadeIsTriedOnce) {
    fakes::CapturedLog log;
    launch();
    files->makeReadOnly(Url::file("/home/user"));
    files->removeDirectory(folder);
    time.settle();
    EXPECT_FALSE(delegate->watcher().isWatching());
    EXPECT_THAT(log.lines(), ElementsAre("Vantle: cannot watch /home/user/Desktop: missing"));
}

}  // namespace
}  // namespace vantle
