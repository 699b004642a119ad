#pragma once

#include <cstddef>
#include <vector>

#include "app/CaptureLoader.h"
#include "panel/CapturePanelController.h"
#include "platform/SerialQueue.h"

namespace vantle {

/// Keeps the latest captures of this run and can show them again. Main thread only.
class RecentCaptures {
public:
    static constexpr std::size_t maximum = 20;

    /// All members must outlive the object.
    struct Services {
        CapturePanelController& panel;
        SerialQueue& queue;
    };

    RecentCaptures(const Services& services, CaptureLoader loader);

    /// Returns the captures, newest first. Their thumbnails are as small as a menu shows them.
    const std::vector<CapturePointer>& captures() const { return captures_; }

    /// Puts the capture first, even if it was there already.
    void add(const CapturePointer& capture);

    /// Must be called when the file of a capture has another name.
    void renamed(const Url& from, const Url& to);

    /// Shows one of the captures in the panel, with its whole thumbnail.
    void show(const CapturePointer& recent) const;

private:
    Services services_;
    CaptureLoader loader_;
    std::vector<CapturePointer> captures_;
};

}  // namespace vantle
