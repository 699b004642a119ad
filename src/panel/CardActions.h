#pragma once

#include <functional>
#include <vector>

#include "capture/Capture.h"
#include "support/Geometry.h"

namespace vantle {

/// One thing that a drag carries.
struct DragItem {
    Url url;
    ImagePointer image;  ///< Null when the capture has no picture.
};

/// The callbacks through which the card asks for actions; all sixteen are always given. Each
/// holds the controller weakly.
struct CardActions {
    using OnCapture = std::function<void(const CapturePointer&)>;
    using OnPanel = std::function<void()>;

    OnCapture close;
    OnPanel closeAll;
    OnCapture open;
    OnCapture copy;
    OnCapture reveal;
    /// With the frame of the button, in the panel's content, that the share menu is to point at.
    std::function<void(const CapturePointer&, const Rect& anchor)> share;
    OnCapture trash;
    OnCapture toggleSelect;
    OnCapture togglePin;
    OnPanel clearSelection;
    /// The items of a drag that starts on that capture.
    std::function<std::vector<DragItem>(const CapturePointer&)> dragItems;
    OnPanel dragBegan;
    /// Whether the drop was completed, and the files that were dragged.
    std::function<void(bool completed, const std::vector<Url>& urls)> dragEnded;
    OnPanel copySelected;
    OnPanel trashSelected;
    OnPanel removeSelected;
};

}  // namespace vantle
