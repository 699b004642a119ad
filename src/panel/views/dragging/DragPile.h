#pragma once

#include <QImage>
#include <QRectF>
#include <vector>

#include "panel/views/dragging/DraggingSession.h"

namespace vantle {

/// The picture of a drag: its items as a pile with rounded corners, the first on top, and the
/// number of items if there are several.
struct DragPile {
    enum class Edges {
        soft,
        opaque,  ///< The first item alone, for screens without transparency.
    };

    QImage picture;
    QRectF frame;  ///< The frame at the start, in the window's points.
};

DragPile dragPile(std::vector<DraggingItem> items, double pixelsPerPoint,
                  DragPile::Edges edges = DragPile::Edges::soft);

}  // namespace vantle
