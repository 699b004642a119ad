#pragma once

#include <memory>

#include "capture/Capture.h"
#include "panel/CapturePanelController.h"
#include "platform/CaptureExtensions.h"
#include "platform/MediaLoader.h"
#include "platform/Scheduler.h"
#include "platform/WallClock.h"

namespace vantle {

/// Loads captures in the background and shows them in the panel. A value, which holds the panel
/// weakly. Its operations are to be called on the watcher's queue.
class CaptureLoader {
public:
    /// All outlive it.
    struct Services {
        Scheduler& scheduler;
        const WallClock& clock;
        MediaLoader& media;
        CaptureExtensions moreExtensions;
    };

    CaptureLoader(const Services& services, const std::shared_ptr<CapturePanelController>& panel)
        : services_(services), panel_(panel) {}

    /// A file as if it were saved now. What cannot be a capture is left out.
    void load(const Url& file) const;

    /// A capture with the whole of its thumbnail, or with what is left of that when its file is
    /// gone.
    void loadAgain(const CapturePointer& capture) const;

private:
    void show(const CapturePointer& capture) const;

    Services services_;
    std::weak_ptr<CapturePanelController> panel_;
};

}  // namespace vantle
