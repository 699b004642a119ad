#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "capture/CaptureWatcher.h"
#include "capture/WatchError.h"
#include "platform/Alerts.h"
#include "platform/Application.h"
#include "platform/FileManager.h"
#include "platform/PrivacySettings.h"
#include "platform/Scheduler.h"
#include "platform/SerialQueue.h"
#include "settings/Settings.h"

namespace vantle {

/// Handles a watch error: shows an alert and acts on the answer, or recreates a missing folder
/// without an alert. Main thread only. Deferred work holds the handler weakly, and the handler may
/// be destroyed while an alert is shown.
class WatchErrorHandler : public std::enable_shared_from_this<WatchErrorHandler> {
public:
    /// All members must outlive the handler.
    struct Services {
        const Settings& settings;
        CaptureWatcher& watcher;
        Scheduler& scheduler;
        SerialQueue& servers;  ///< For remote folders.
        FileManager& files;
        Application& application;
        Alerts& alerts;
        PrivacySettings& privacySettings;
    };

    static std::shared_ptr<WatchErrorHandler> create(const Services& services);

    /// Called when the user wants to choose another folder.
    std::function<void()> onSettings = [] {};

    /// Handles the error, unless it is equal to the last one. Returns when the user has answered
    /// the alert, if there is one.
    void handle(const WatchError& error);

private:
    explicit WatchErrorHandler(const Services& services) : services_(services) {}
    void askForAccess(const Url& folder);
    void recreate(const Url& folder);
    void recreateOnServer(const Url& folder);
    void recreatedOnServer(const Url& folder, bool isThere);
    void offerSettings(const Alert& alert);
    int run(const Alert& alert);

    Services services_;
    std::optional<WatchError> lastWatchError_;
};

}  // namespace vantle
