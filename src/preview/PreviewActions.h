#pragma once

#include <functional>
#include <vector>

#include "panel/CardActions.h"
#include "support/Geometry.h"
#include "support/Url.h"

namespace vantle {

/// The callbacks through which the preview requests actions. All are always set. Places are those
/// of PreviewZoom.
struct PreviewActions {
    using Action = std::function<void()>;

    Action close;
    /// Shows the next or (-1) the previous capture of the card, if there is one.
    std::function<void(int direction)> step;
    /// Shows the next or (-1) the previous page of a document.
    std::function<void(int direction)> stepPage;
    std::function<void(Point anchor)> toggleRealPixels;
    std::function<void(double factor, Point anchor)> zoomBy;
    std::function<void(double x, double y)> moveBy;
    /// These act on the capture that is shown, as on its tile.
    Action open;
    Action copy;
    Action trash;
    /// Copies the text of the page that is shown.
    Action copyText;
    Action stopCopyingText;
    std::function<std::vector<DragItem>()> dragItems;
    Action dragBegan;
    std::function<void(bool completed, const std::vector<Url>& urls)> dragEnded;
    /// Called when the preview has gone back to its place.
    Action closed;
};

}  // namespace vantle
