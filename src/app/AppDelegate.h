#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/StatusBarController.h"
#include "app/StatusReport.h"
#include "app/UpdaterDelegate.h"
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
    static constexpr std::size_t maximumRecent = 20;

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

    /// Shows two sample captures, the second one a little later. They go straight to the panel: not
    /// to recent(), the clipboard or the ears.
    void showDemo();

    /// Does what the launcher, a script or a second start asks for, and gives the answer for a
    /// person: lines for "status", else nothing. The actions and their arguments are those of the
    /// command line.
    Result<std::string> perform(const ApplicationRequest& request);

    /// `size` made to fit on the screen with a margin.
    Size fit(Size size) const;

    Settings& settings() { return settings_; }
    StatusBarController& statusBar() { return statusBar_; }
    CapturePanelController& panel() { return *panel_; }
    const CaptureWatcher& watcher() const { return *watcher_; }
    const RecordingsWatcher& recordings() const { return *recordings_; }

    /// Newest first; of this run only. Their thumbnails are as small as a menu shows them.
    const std::vector<CapturePointer>& recent() const { return recent_; }

private:
    AppDelegate(Platform& platform, Views views);

    void connectApplication();
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
    void remember(const CapturePointer& capture);
    /// Shows a recent capture in the panel, with the whole of its thumbnail.
    void showAgain(const CapturePointer& recent);
    void checkForUpdates();

    // Watch errors: each shows its alert and does what is answered.
    void askForAccess(const Url& folder);
    void recreate(const Url& folder);
    void recreateOnServer(const Url& folder);
    void recreatedOnServer(const Url& folder, bool isThere);
    void offerSettings(const Alert& alert);
    /// Comes to the front, and returns the answer.
    int run(const Alert& alert);

    void setPaused(bool paused);
    Result<std::string> focusPanel();
    Result<std::string> show(const std::vector<std::string>& paths);
    Result<std::string> status(const std::vector<std::string>& arguments) const;
    std::vector<Fact> recordingsFacts(Paths paths) const;

    /// To be called on the watcher's queue with a file: loads it, then shows it in the panel.
    std::function<void(const Url&)> loader();

    /// Where no tray shows the icon, tells the user once and for all how to reach the program.
    void explainMissingTray();
    std::string trayAdvice() const;

    /// Made on the first call; null where there is none.
    Updater* updater();

    Platform& platform_;
    Views views_;
    Settings settings_;
    std::shared_ptr<CaptureWatcher> watcher_;
    std::shared_ptr<RecordingsWatcher> recordings_;  ///< Of the desktop's recorder.
    std::shared_ptr<CapturePanelController> panel_;
    StatusBarController statusBar_;
    std::vector<CapturePointer> recent_;
    std::unique_ptr<Window> onboardingWindow_;
    std::unique_ptr<Window> settingsWindow_;
    std::vector<Subscription> cancellables_;
    UpdaterDelegate updaterDelegate_;
    std::unique_ptr<Updater> updater_;
    std::optional<WatchError> lastWatchError_;
};

}  // namespace vantle
