#pragma once

#include <vector>

#include "capture/Capture.h"
#include "settings/PanelCorner.h"
#include "support/Geometry.h"

namespace vantle {

/// Constants and sizes of the card, in points. Pure functions.
class CardLayout {
public:
    static constexpr int maxCaptures = 40;
    /// Between the card's edge and what is on it.
    static constexpr double padding = 12;
    /// The part of the padding that belongs to the row of tiles, which scrolls with it.
    static constexpr double innerMargin = 10;
    /// Between two tiles.
    static constexpr double spacing = 10;
    /// The row of tiles scrolls when it is wider.
    static constexpr double maxContentWidth = 640;
    static constexpr double thumbnailCornerRadius = 12;
    /// The panel window's one and only size.
    static constexpr Size windowSize{800, 330};

    /// The height of the tiles when `count` captures are on show.
    static double tileHeight(int count);

    /// The size of a capture's tile when `count` captures are on show.
    static Size tileSize(int count, const Capture& capture);

    /// The width of the tile of a capture that is alone: wide enough for its controls.
    static double singleWidth(const Capture& capture);

    /// The natural width of the whole row.
    static double contentWidth(const std::vector<CapturePointer>& captures);

    /// Where the panel window stands inside the visible frame of a screen (y upwards).
    static Rect windowFrame(PanelCorner corner, const Rect& visibleFrame);
};

}  // namespace vantle
