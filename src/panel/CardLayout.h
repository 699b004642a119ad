#pragma once

#include <vector>

#include "capture/Capture.h"
#include "settings/PanelCorner.h"
#include "support/Geometry.h"

namespace vantle {

/// The constants and sizes of the card, in points. All functions are pure.
class CardLayout {
public:
    static constexpr int maxCaptures = 40;
    /// The distance between the card's edge and its content.
    static constexpr double padding = 12;
    /// The part of the padding that belongs to the row of tiles and scrolls with it.
    static constexpr double innerMargin = 10;
    /// The gap between two tiles.
    static constexpr double spacing = 10;
    /// A wider row of tiles scrolls.
    static constexpr double maxContentWidth = 640;
    static constexpr double thumbnailCornerRadius = 12;
    /// The size of the panel window, which never changes.
    static constexpr Size windowSize{800, 330};

    /// Returns the height of the tiles when `count` captures are shown.
    static double tileHeight(int count);

    /// Returns the size of a capture's tile when `count` captures are shown.
    static Size tileSize(int count, const Capture& capture);

    /// Returns the width of the tile of a single capture, which is wide enough for its controls.
    static double singleWidth(const Capture& capture);

    /// Returns the natural width of the whole row.
    static double contentWidth(const std::vector<CapturePointer>& captures);

    /// Returns the frame of the panel window inside the visible frame of a screen (y upwards).
    static Rect windowFrame(PanelCorner corner, const Rect& visibleFrame);
};

}  // namespace vantle
