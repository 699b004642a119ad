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

/// A desktop without a tray has no icon to click. Main thread only. Deferred work holds it weakly.
class MissingTray : public std::enable_shared_from_this<MissingTray> {
public:
    /// All outlive it.
    struct Services {
        UserDefaults& defaults;
        Scheduler& scheduler;
        Application& application;
        Alerts& alerts;
        const StatusItem& statusItem;
        /// What would bring a tray; may be empty.
        const std::function<std::optional<TrayExtension>()>& trayExtension;
    };

    static std::shared_ptr<MissingTray> create(const Services& services);

    /// Where no tray shows the icon after a while, tells the user once and for all how to reach the
    /// program.
    void explain();

private:
    explicit MissingTray(const Services& services) : services_(services) {}
    void explainNow();
    std::string advice() const;

    Services services_;
};

}  // namespace vantle
