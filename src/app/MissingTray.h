#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/Alerts.h"
#include "platform/Application.h"
#include "platform/Scheduler.h"
#include "platform/StatusItem.h"
#include "platform/TrayExtension.h"
#include "platform/UserDefaults.h"

namespace vantle {

/// Explains how to use the program on a desktop without a tray, where there is no icon to click.
/// Main thread only. Deferred work holds the object weakly.
class MissingTray : public std::enable_shared_from_this<MissingTray> {
public:
    /// All members must outlive the object.
    struct Services {
        UserDefaults& defaults;
        Scheduler& scheduler;
        Application& application;
        Alerts& alerts;
        const StatusItem& statusItem;
        /// Returns what would provide a tray; may be empty.
        const std::function<std::optional<TrayExtension>()>& trayExtension;
    };

    static std::shared_ptr<MissingTray> create(const Services& services);

    /// If no tray shows the icon after a while, tells the user how to reach the program. Does this
    /// only once, even across restarts.
    void explain();

private:
    explicit MissingTray(const Services& services) : services_(services) {}
    void explainNow();
    std::string advice() const;

    Services services_;
};

}  // namespace vantle
