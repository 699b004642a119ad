#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "capture/Capture.h"
#include "panel/CapturePanelController.h"
#include "platform/CaptureExtensions.h"
#include "platform/MediaLoader.h"
#include "platform/Scheduler.h"
#include "platform/WallClock.h"

namespace vantle {

/// Loads captures in the background and shows them in the panel. A value that holds the panel
/// weakly. Its functions must be called on the watcher's queue.
class CaptureLoader {
public:
    /// All members must outlive the loader and its copies.
    struct Services {
        Scheduler& scheduler;
        const WallClock& clock;
        MediaLoader& media;
        CaptureExtensions additionalExtensions;
    };

    CaptureLoader(const Services& services, const std::shared_ptr<CapturePanelController>& panel)
        : services_(services), panel_(panel) {}

    /// Loads and shows a file as if it had just been saved. Ignores a file that cannot be a
    /// capture.
    void load(const Url& file) const;

    /// Loads and shows a capture with its whole thumbnail, or with the small one that it has if its
    /// file is gone.
    void loadAgain(const CapturePointer& capture) const;

    /// Loads captures with their whole thumbnails, or with the small ones that they have if their
    /// files are gone, and calls `loaded` on the main thread.
    void reload(const std::vector<CapturePointer>& captures,
                std::function<void(const std::vector<CapturePointer>&)> loaded) const;

private:
    CapturePointer reloaded(const CapturePointer& capture) const;
    void show(const CapturePointer& capture) const;

    Services services_;
    std::weak_ptr<CapturePanelController> panel_;
};

}  // namespace vantle
