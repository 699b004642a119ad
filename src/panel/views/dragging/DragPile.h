#pragma once

#include <QImage>
#include <QRectF>
#include <vector>

#include "panel/views/dragging/DraggingSession.h"

namespace vantle {

/// The picture of a drag: its items as a pile with rounded corners, the first on top, and their
/// number where there are several.
struct DragPile {
    QImage picture;
    QRectF frame;  ///< Where it starts, in the window's points.
};

DragPile dragPile(const std::vector<DraggingItem>& items, double pixelsPerPoint);

}  // namespace vantle
