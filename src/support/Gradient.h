#pragma once

#include "support/Color.h"
#include "support/Geometry.h"

namespace vantle {

/// A gradient from one colour to another over a whole rectangle, between two opposite corners.
struct LinearGradient {
    Color start;
    Color end;
    double angle = 0;  ///< Degrees, counterclockwise; 0 points to the right.
};

/// The points at which a gradient begins and ends.
struct GradientLine {
    Point start;
    Point end;
};

/// Returns the line of a gradient over a rectangle of `size`, in coordinates whose y grows
/// downwards.
GradientLine gradientLine(const Size& size, double angle);

}  // namespace vantle
