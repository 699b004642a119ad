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

/// Does what others ask of the program by name. Main thread only.
class RequestHandler {
public:
    /// All outlive it.
    struct Services {
        Application& application;
        const FileManager& files;
        SerialQueue& queue;
        CaptureExtensions moreExtensions;
        CapturePanelController& panel;
        StatusBarController& statusBar;
    };

    RequestHandler(const Services& services, CaptureLoader loader, const StatusReport& report);

    std::function<void()> onSettings = [] {};
    std::function<void()> onSample = [] {};

    /// Gives the answer for a person: lines for "status", else nothing. The actions and their
    /// arguments are those of the command line.
    Result<std::string> perform(const ApplicationRequest& request);

private:
    void setPaused(bool paused);
    Result<std::string> focusPanel();
    Result<std::string> show(const std::vector<std::string>& paths);

    Services services_;
    CaptureLoader loader_;
    StatusReport report_;
};

}  // namespace vantle
