#pragma once

#include "support/Geometry.h"

namespace vantle {

/// The sizes of the preview, in points. All functions are pure.
class PreviewLayout {
public:
    /// The part of the visible screen that the preview may cover in each direction.
    static constexpr double screenFraction = 0.85;
    /// The distance between the glass's edge and the picture.
    static constexpr double margin = 10;
    /// The height of the bar below the picture.
    static constexpr double barHeight = 52;
    /// The smallest area for a picture, which leaves room for the bar and its buttons.
    static constexpr Size minimumArea{480, 120};

    /// Returns the largest area for a picture on a screen of that visible size.
    static Size maximumArea(Size screen);

    /// Returns the size at which the whole picture is shown: as large as its pixels are on a screen
    /// with that many pixels per point, or smaller to fit into `maximum`. A vector image has no
    /// pixels of its own and is shown as large as possible.
    static Size fitted(Size pixels, double pixelsPerPoint, Size maximum, bool isVector);

    /// Returns the area in which a picture of that size is shown. It may be larger than the
    /// picture, which is then centred, or smaller, which hides parts of the picture.
    static Size area(Size picture, Size maximum);

    /// Returns the frame of the glass around an area, in the middle of a screen of that visible
    /// size; from the screen's upper left, y downwards.
    static Rect glass(Size area, Size screen);
};

}  // namespace vantle
