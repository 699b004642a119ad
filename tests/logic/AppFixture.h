#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/AppDelegate.h"
#include "fakes/FakeAlerts.h"
#include "fakes/FakeApplication.h"
#include "fakes/FakeCanvas.h"
#include "fakes/FakeContextMenu.h"
#include "fakes/FakeEnvironment.h"
#include "fakes/FakeFileOpener.h"
#include "fakes/FakeFileSystem.h"
#include "fakes/FakeLoginItem.h"
#include "fakes/FakeMediaLoader.h"
#include "fakes/FakeOpenWith.h"
#include "fakes/FakePanelWindow.h"
#include "fakes/FakePasteboard.h"
#include "fakes/FakePreferencesDomain.h"
#include "fakes/FakePrivacySettings.h"
#include "fakes/FakeProcessLauncher.h"
#include "fakes/FakeScreens.h"
#include "fakes/FakeSharingServicePicker.h"
#include "fakes/FakeSpareMemory.h"
#include "fakes/FakeStatusItem.h"
#include "fakes/FakeTextReader.h"
#include "fakes/FakeTrash.h"
#include "fakes/FakeUserDefaults.h"
#include "fakes/FakeWindow.h"
#include "fakes/VirtualTime.h"

namespace vantle {

inline const Url folder = Url::file("/home/user/Desktop");

/// What happened in all services, in order.
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

/// The program on fakes and virtual time.
class AppFixture : public testing::Test {
protected:
    AppFixture() {
        const auto add = [](auto& slot, auto service) {
            auto& reference = *service;
            slot = std::move(service);
            return &reference;
        };
        platform.environment = environment;
        auto* scheduler = add(platform.scheduler, std::make_unique<fakes::ManualScheduler>(time));
        clock = add(platform.clock, std::make_unique<fakes::VirtualClock>(time));
        auto* queue = add(platform.watcherQueue, std::make_unique<fakes::ManualQueue>(time));
        platform.serverQueue = std::make_unique<fakes::ManualQueue>(time);
        platform.pictureQueue = std::make_unique<fakes::ManualQueue>(time);
        auto fileSystem = std::make_unique<fakes::FakeFileSystem>(*queue);
        files = fileSystem.get();
        (void)files->createDirectory(folder);
        platform.directoryEvents = std::make_unique<EventsOf>(*fileSystem);
        platform.files = std::move(fileSystem);
        media = add(platform.media, std::make_unique<fakes::FakeMediaLoader>());
        defaults = add(platform.defaults, std::make_unique<fakes::FakeUserDefaults>());
        domain =
            add(platform.screenshotPreferences, std::make_unique<fakes::FakePreferencesDomain>());
        add(platform.launcher, std::make_unique<fakes::FakeProcessLauncher>());
        loginItem = add(platform.loginItem, std::make_unique<fakes::FakeLoginItem>());
        screens = add(platform.screens, std::make_unique<fakes::FakeScreens>());
        application = add(platform.application, std::make_unique<fakes::FakeApplication>());
        opener = add(platform.opener, std::make_unique<fakes::FakeFileOpener>());
        openWith = add(platform.openWith, std::make_unique<fakes::FakeOpenWith>(*scheduler));
        pasteboard = add(platform.pasteboard, std::make_unique<fakes::FakePasteboard>(*files));
        platform.sharing = std::make_unique<fakes::FakeSharingServicePicker>();
        contextMenu = add(platform.contextMenu, std::make_unique<fakes::FakeContextMenu>());
        platform.trash = std::make_unique<fakes::FakeTrash>(*scheduler, *files);
        platform.textReader = std::make_unique<fakes::FakeTextReader>(*scheduler);
        statusItem = add(platform.statusItem, std::make_unique<fakes::FakeStatusItem>());
        alerts = add(platform.alerts, std::make_unique<fakes::FakeAlerts>());
        privacySettings =
            add(platform.privacySettings, std::make_unique<fakes::FakePrivacySettings>());
        canvas = add(platform.canvas, std::make_unique<fakes::FakeCanvas>());
        platform.spareMemory = std::make_unique<fakes::FakeSpareMemory>();
        platform.sounds = std::make_unique<RecordingSounds>(events);
        platform.makeUpdater = [this](Platform&, UpdaterObserver&) {
            return std::make_unique<RecordingUpdater>(events);
        };
        defaults->stored["hasCompletedOnboarding"] = true;
    }

    /// Forwards to the fake file system, which is two services in one object.
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
        views.makePanel = [this](PanelState&, Settings&, CardActions) {
            events.push_back("panel made");
            return std::make_unique<fakes::FakePanelWindow>(panel);
        };
        delegate = AppDelegate::create(platform, views);
        return *delegate;
    }

    AppDelegate& launch() {
        AppDelegate& launched = make();
        EXPECT_FALSE(launched.applicationWillFinishLaunching().has_value());
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
        const auto make = [this](const char* name) {
            return std::make_unique<fakes::FakeWindow>(
                fakes::FakeWindow::Record{events, windowSizes}, name);
        };
        views.makeSettingsWindow = [make](Settings&) { return make("settings"); };
        views.makeOnboardingWindow = [this, make](Settings&, std::function<void()> finish) {
            finishOnboarding = std::move(finish);
            return make("onboarding");
        };
    }

    fakes::VirtualTime time;
    Events events;
    fakes::FakeEnvironment environment;
    fakes::FakePanelWindow::Record panel;
    Platform platform;
    AppDelegate::Views views;
    fakes::VirtualClock* clock = nullptr;
    fakes::FakeFileSystem* files = nullptr;
    fakes::FakeMediaLoader* media = nullptr;
    fakes::FakeUserDefaults* defaults = nullptr;
    fakes::FakePreferencesDomain* domain = nullptr;
    fakes::FakeLoginItem* loginItem = nullptr;
    fakes::FakeScreens* screens = nullptr;
    fakes::FakePasteboard* pasteboard = nullptr;
    fakes::FakeApplication* application = nullptr;
    fakes::FakeFileOpener* opener = nullptr;
    fakes::FakeContextMenu* contextMenu = nullptr;
    fakes::FakeOpenWith* openWith = nullptr;
    fakes::FakeStatusItem* statusItem = nullptr;
    fakes::FakeAlerts* alerts = nullptr;
    fakes::FakePrivacySettings* privacySettings = nullptr;
    fakes::FakeCanvas* canvas = nullptr;
    std::vector<Size> windowSizes;
    std::function<void()> finishOnboarding;
    std::shared_ptr<AppDelegate> delegate;
};

}  // namespace vantle
