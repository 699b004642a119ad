#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/StatusBarController.h"
#include "capture/CaptureWatcher.h"
#include "panel/CapturePanelController.h"
#include "platform/Platform.h"
#include "settings/Settings.h"
#include "support/Subscription.h"

namespace vantle {

/// Owns every long-lived component and connects them; has almost no logic of its own. The
/// components are made with it and connected when launching has finished. Main thread only.
class AppDelegate : public std::enable_shared_from_this<AppDelegate> {
public:
    static constexpr std::size_t maximumRecent = 20;

    /// `platform` outlives the delegate.
    static std::shared_ptr<AppDelegate> create(Platform& platform,
                                               CapturePanelController::PanelFactory makePanel);

    /// What the launcher or a second start can ask for by name: the panel takes the keyboard.
    static constexpr auto focusPanelAction = "focus-panel";

    /// Hands over to a copy that runs already: asks that one for `action`, or brings it forward
    /// when that is empty, and terminates this one. False then: launching must not go on.
    bool applicationWillFinishLaunching(const std::string& action = {});

    /// Connects the components and starts watching, or the onboarding on the first run.
    void applicationDidFinishLaunching();

    /// The user opened the program again while it runs. Always true: it was handled.
    bool applicationShouldHandleReopen(bool hasVisibleWindows);

    void showSettings();
    void showOnboarding();
    void handleWatchError(const WatchError& error);

    /// `size` made to fit on the screen with a margin.
    Size fit(Size size) const;

    Settings& settings() { return settings_; }
    StatusBarController& statusBar() { return statusBar_; }
    CapturePanelController& panel() { return *panel_; }
    const CaptureWatcher& watcher() const { return *watcher_; }

    /// Newest first; of this run only.
    const std::vector<CapturePointer>& recent() const { return recent_; }

private:
    AppDelegate(Platform& platform, CapturePanelController::PanelFactory makePanel);

    void connectApplication();
    void connectStatusBar();
    void connectWatcher();
    void observeScreenshotFolder();
    void startWatching();
    void finishOnboarding();
    void captured(const CapturePointer& capture);
    void checkForUpdates();

    /// Made on the first call; null where there is none.
    Updater* updater();

    Platform& platform_;
    Settings settings_;
    std::shared_ptr<CaptureWatcher> watcher_;
    std::shared_ptr<CapturePanelController> panel_;
    StatusBarController statusBar_;
    std::vector<CapturePointer> recent_;
    std::unique_ptr<Window> onboardingWindow_;
    std::unique_ptr<Window> settingsWindow_;
    std::vector<Subscription> cancellables_;
    std::unique_ptr<Updater> updater_;
    std::optional<WatchError> lastWatchError_;
};

}  // namespace vantle
