#pragma once

#include <optional>
#include <vector>

#include "support/Geometry.h"

namespace vantle {

/// One display. Coordinates are points with the origin at the bottom left of the primary display
/// and y growing upwards.
struct Screen {
    Rect frame;
    Rect visibleFrame;  ///< Without the desktop's own panels and docks.
    double pixelsPerPoint = 1;
};

/// The displays and the pointer. Main thread only.
class Screens {
public:
    virtual ~Screens() = default;

    /// Returns the displays in the system's order; empty while no display is connected.
    virtual std::vector<Screen> all() const = 0;

    /// Returns the display that the user is working on, or else the primary one; absent if there is
    /// none.
    virtual std::optional<Screen> main() const = 0;

    virtual Point pointerLocation() const = 0;
};

}  // namespace vantle
