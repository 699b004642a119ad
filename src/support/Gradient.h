#pragma once

#include "support/Color.h"
#include "support/Geometry.h"

namespace vantle {

/// From one colour to another over a whole rectangle: they stand in two opposite corners.
struct LinearGradient {
    Color start;
    Color end;
    double angle = 0;  ///< Degrees, counter-clockwise from the direction to the right.
};

/// Where a gradient begins and ends.
struct GradientLine {
    Point start;
    Point end;
};

/// That of a gradient over a rectangle of `size` whose y grows downwards.
GradientLine gradientLine(const Size& size, double angle);

}  // namespace vantle
