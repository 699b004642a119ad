#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/MissingTray.h"
#include "app/RecentCaptures.h"
#include "app/RequestHandler.h"
#include "app/SampleCaptures.h"
#include "app/StatusBarController.h"
#include "app/UpdaterDelegate.h"
#include "app/WatchErrorHandler.h"
#include "capture/CaptureWatcher.h"
#include "capture/RecordingsWatcher.h"
#include "panel/CapturePanelController.h"
#include "platform/Platform.h"
#include "platform/Window.h"
#include "settings/Settings.h"
#include "support/Subscription.h"

namespace vantle {

/// Owns every long-lived component and connects them; has almost no logic of its own. The
/// components are made with it and connected when launching has finished. Main thread only.
class AppDelegate : public std::enable_shared_from_this<AppDelegate> {
public:
    /// Makes what is seen.
    struct Views {
        CapturePanelController::PanelFactory makePanel;
        /// They may be empty: then there are no settings to show, and nobody to be introduced.
        std::function<std::unique_ptr<Window>(Settings& settings)> makeSettingsWindow;
        std::function<std::unique_ptr<Window>(Settings& settings, std::function<void()> finish)>
            makeOnboardingWindow;
    };

    /// `platform` outlives the delegate.
    static std::shared_ptr<AppDelegate> create(Platform& platform, Views views);

    /// Hands over to a copy that runs already: has that one do `request`, or brings it forward when
    /// there is none, and terminates this one. Gives that one's answer then, as perform() does:
    /// launching must not go on. Absent when no other copy runs.
    std::optional<Result<std::string>> applicationWillFinishLaunching(
        const std::optional<ApplicationRequest>& request = {});

    /// Connects the components and starts watching, or the onboarding on the first run.
    void applicationDidFinishLaunching();

    /// The user opened the program again while it runs. Always true: it was handled.
    bool applicationShouldHandleReopen(bool hasVisibleWindows);

    void showSettings();
    void showOnboarding();
    void handleWatchError(const WatchError& error);

    /// Shows two sample captures.
    void showDemo();

    /// Does what the launcher, a script or a second start asks for, and gives the answer.
    Result<std::string> perform(const ApplicationRequest& request);

    /// `size` made to fit on the screen with a margin.
    Size fit(Size size) const;

    Settings& settings() { return settings_; }
    StatusBarController& statusBar() { return statusBar_; }
    CapturePanelController& panel() { return *panel_; }
    const CaptureWatcher& watcher() const { return *watcher_; }
    const RecordingsWatcher& recordings() const { return *recordings_; }

    /// Newest first; of this run only. Their thumbnails are as small as a menu shows them.
    const std::vector<CapturePointer>& recent() const { return recent_.captures(); }

private:
    AppDelegate(Platform& platform, Views views);

    void connectApplication();
    void connectRequests();
    void connectStatusBar();
    void connectWatcher();
    void observeScreenshotFolder();
    void observeSystem();
    void observeShowRecordings();
    void connectNotifications();
    void startWatching();
    void stopWatching();
    /// Starts or stops with the recorder's folder, by all that decides about it.
    void watchRecordings();
    void watchRecordingsSoon();
    void finishOnboarding();
    void present(Window& window, Size contentSize);
    void writeOnboardingSnapshot(const std::string& path);
    void captured(const CapturePointer& capture);
    void checkForUpdates();

    /// Made on the first call; null where there is none.
    Updater* updater();

    Platform& platform_;
    Views views_;
    Settings settings_;
    std::shared_ptr<CaptureWatcher> watcher_;
    std::shared_ptr<RecordingsWatcher> recordings_;  ///< Of the desktop's recorder.
    std::shared_ptr<CapturePanelController> panel_;
    StatusBarController statusBar_;
    RecentCaptures recent_;
    SampleCaptures samples_;
    RequestHandler requests_;
    std::shared_ptr<WatchErrorHandler> watchErrors_;
    std::shared_ptr<MissingTray> missingTray_;
    std::unique_ptr<Window> onboardingWindow_;
    std::unique_ptr<Window> settingsWindow_;
    std::vector<Subscription> cancellables_;
    UpdaterDelegate updaterDelegate_;
    std::unique_ptr<Updater> updater_;
};

}  // namespace vantle
