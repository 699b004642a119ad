#pragma once

#include <cstddef>
#include <vector>

#include "app/CaptureLoader.h"
#include "panel/CapturePanelController.h"
#include "platform/SerialQueue.h"

namespace vantle {

/// The latest captures of this run, newest first, and bringing one of them back. Main thread only.
class RecentCaptures {
public:
    static constexpr std::size_t maximum = 20;

    /// All outlive it.
    struct Services {
        CapturePanelController& panel;
        SerialQueue& queue;
    };

    RecentCaptures(const Services& services, CaptureLoader loader);

    /// Their thumbnails are as small as a menu shows them.
    const std::vector<CapturePointer>& captures() const { return captures_; }

    /// Puts it first, also one that was there already.
    void add(const CapturePointer& capture);

    /// Shows one of them in the panel, with the whole of its thumbnail.
    void show(const CapturePointer& recent) const;

private:
    Services services_;
    CaptureLoader loader_;
    std::vector<CapturePointer> captures_;
};

}  // namespace vantle
