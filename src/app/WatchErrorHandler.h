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

/// What becomes of a watch error: an alert, and what the user answers to it; or a folder that is
/// made again without a word. Main thread only. Deferred work holds it weakly, and it may go while
/// an alert is shown.
class WatchErrorHandler : public std::enable_shared_from_this<WatchErrorHandler> {
public:
    /// All outlive it.
    struct Services {
        const Settings& settings;
        CaptureWatcher& watcher;
        Scheduler& scheduler;
        SerialQueue& servers;  ///< For folders that are remote.
        FileManager& files;
        Application& application;
        Alerts& alerts;
        PrivacySettings& privacySettings;
    };

    static std::shared_ptr<WatchErrorHandler> create(const Services& services);

    /// The user wants to choose another folder.
    std::function<void()> onSettings = [] {};

    /// Acts on the error, unless it is the one that it acted on last. Returns when the alert, if
    /// there is one, was answered.
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
