#pragma once

#include <functional>
#include <vector>

#include "capture/Capture.h"

namespace vantle {

/// The program's item in the tray. It knows nothing of the other components and reaches them only
/// through its callbacks, which are always callable. Main thread only.
class StatusBarController {
public:
    /// The captures to list, newest first.
    std::function<std::vector<CapturePointer>()> recent = [] {
        return std::vector<CapturePointer>{};
    };
    std::function<void(const CapturePointer&)> onShow = [](const CapturePointer&) {};
    std::function<void()> onSettings = [] {};
    std::function<void()> onCheckForUpdates = [] {};
    /// With the new state: true when watching is to pause.
    std::function<void(bool paused)> onPause = [](bool) {};

    /// Whether watching is paused. Not stored: every start is unpaused.
    bool paused() const { return paused_; }

    void togglePause() {
        paused_ = !paused_;
        onPause(paused_);
    }

private:
    bool paused_ = false;
};

}  // namespace vantle
