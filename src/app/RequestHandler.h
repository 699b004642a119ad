#pragma once

#include <functional>
#include <string>
#include <vector>

#include "app/CaptureLoader.h"
#include "app/StatusBarController.h"
#include "app/StatusReport.h"
#include "panel/CapturePanelController.h"
#include "platform/Application.h"
#include "platform/CaptureExtensions.h"
#include "platform/FileManager.h"
#include "platform/SerialQueue.h"

namespace vantle {

/// Performs the actions that the command line, the launcher or a script requests by name. Main
/// thread only.
class RequestHandler {
public:
    /// All members must outlive the handler.
    struct Services {
        Application& application;
        const FileManager& files;
        SerialQueue& queue;
        CaptureExtensions additionalExtensions;
        CapturePanelController& panel;
        StatusBarController& statusBar;
    };

    RequestHandler(const Services& services, CaptureLoader loader, const StatusReport& report);

    std::function<void()> onSettings = [] {};
    std::function<void()> onSample = [] {};

    /// Returns the answer for a person: lines for "status", otherwise nothing. The actions and
    /// their arguments have the names of the command line.
    Result<std::string> perform(const ApplicationRequest& request);

private:
    void setPaused(bool paused);
    Result<std::string> focusPanel();
    Result<std::string> restore();
    Result<std::string> show(const std::vector<std::string>& paths);

    Services services_;
    CaptureLoader loader_;
    StatusReport report_;
};

}  // namespace vantle
