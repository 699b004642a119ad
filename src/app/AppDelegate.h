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
#include "preview/PreviewController.h"
#include "settings/Settings.h"
#include "support/Subscription.h"

namespace vantle {

/// Owns and connects every long-lived component; has almost no logic of its own. The components are
/// made with it and connected in applicationDidFinishLaunching(). Main thread only.
class AppDelegate : public std::enable_shared_from_this<AppDelegate> {
public:
    /// Makes the panel and the windows.
    struct Views {
        CapturePanelController::PanelFactory makePanel;
        PreviewController::WindowFactory makePreview;
        /// The next two may be empty. Then there is no settings window, or no onboarding.
        std::function<std::unique_ptr<Window>(Settings& settings)> makeSettingsWindow;
        std::function<std::unique_ptr<Window>(Settings& settings, std::function<void()> finish)>
            makeOnboardingWindow;
    };

    /// `platform` must outlive the delegate.
    static std::shared_ptr<AppDelegate> create(Platform& platform, Views views);

    /// Hands over to a copy of the program that is already running: has it perform `request`, or
    /// brings it to the front if there is none, and terminates this copy. Returns the other copy's
    /// answer, as perform() does; launching must not go on then. Returns nothing if no other copy
    /// is running.
    std::optional<Result<std::string>> applicationWillFinishLaunching(
        const std::optional<ApplicationRequest>& request = {});

    /// Connects the components, then starts watching, or the onboarding on the first run.
    void applicationDidFinishLaunching();

    /// Called when the user opens the program again while it runs. Always returns true: the event
    /// was handled.
    bool applicationShouldHandleReopen(bool hasVisibleWindows);

    void showSettings();
    void showOnboarding();
    void handleWatchError(const WatchError& error);

    /// Shows two sample captures.
    void showDemo();

    /// Performs a request of the launcher, a script or a second start, and returns the answer.
    Result<std::string> perform(const ApplicationRequest& request);

    /// Returns `size`, reduced to fit on the screen with a margin.
    Size fit(Size size) const;

    Settings& settings() { return settings_; }
    StatusBarController& statusBar() { return statusBar_; }
    CapturePanelController& panel() { return *panel_; }
    PreviewController& preview() { return *preview_; }
    const CaptureWatcher& watcher() const { return *watcher_; }
    const RecordingsWatcher& recordings() const { return *recordings_; }

    /// Returns the captures of this run, newest first. Their thumbnails are as small as a menu
    /// shows them.
    const std::vector<CapturePointer>& recent() const { return recent_.captures(); }

private:
    AppDelegate(Platform& platform, Views views);

    void connectApplication();
    void connectRequests();
    void connectStatusBar();
    void connectPreview();
    void connectWatcher();
    void observeScreenshotFolder();
    void observeSystem();
    void observeShowRecordings();
    void connectNotifications();
    void startWatching();
    void stopWatching();
    /// Starts or stops watching the recorder's folder, as the settings and the pause require.
    void watchRecordings();
    void watchRecordingsSoon();
    void finishOnboarding();
    void present(Window& window, Size contentSize);
    void writeOnboardingSnapshot(const std::string& path);
    void captured(const CapturePointer& capture);
    void checkForUpdates();

    /// Makes the updater on the first call. Returns null if the platform has none.
    Updater* updater();

    Platform& platform_;
    Views views_;
    Settings settings_;
    std::shared_ptr<CaptureWatcher> watcher_;
    std::shared_ptr<RecordingsWatcher> recordings_;  ///< Watches the desktop's recorder.
    std::shared_ptr<CapturePanelController> panel_;
    std::shared_ptr<PreviewController> preview_;
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
