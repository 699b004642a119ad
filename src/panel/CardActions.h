#pragma once

#include <functional>
#include <vector>

#include "capture/Capture.h"
#include "support/Geometry.h"

namespace vantle {

/// A file that a drag carries.
struct DragItem {
    Url url;
    ImagePointer image;  ///< Null if the capture has no picture.
};

/// The callbacks through which the card requests actions. All sixteen are always set. Each holds
/// the controller weakly.
struct CardActions {
    using OnCapture = std::function<void(const CapturePointer&)>;
    using OnPanel = std::function<void()>;

    OnCapture close;
    OnPanel closeAll;
    OnCapture open;
    OnCapture copy;
    OnCapture reveal;
    /// `anchor` is the frame of the button to which the share menu points, in the panel's content.
    std::function<void(const CapturePointer&, const Rect& anchor)> share;
    OnCapture trash;
    OnCapture toggleSelect;
    OnCapture togglePin;
    OnPanel clearSelection;
    /// Returns the items of a drag that starts on that capture.
    std::function<std::vector<DragItem>(const CapturePointer&)> dragItems;
    OnPanel dragBegan;
    /// `completed` is true if the other program took the files; `urls` are the files that were
    /// dragged.
    std::function<void(bool completed, const std::vector<Url>& urls)> dragEnded;
    OnPanel copySelected;
    OnPanel trashSelected;
    OnPanel removeSelected;
};

}  // namespace vantle
