#pragma once

#include <optional>

#include "panel/Movement.h"
#include "panel/ScreenSide.h"

namespace vantle {

/// Distinguishes a flick, which throws the card off the screen, from a rubber band. Both begin with
/// a press on the card's background. A flick is short, goes clearly sideways to the near edge of
/// the screen, and is still moving fast when the button is released. Main thread only.
class Flick {
public:
    /// A press that lasts longer is not a flick.
    static constexpr Seconds longest{0.25};

    /// Begins with a press, on a card near that side of the screen.
    Flick(const Point& point, ScreenSide nearEdge, Instant now);

    void move(const Point& point, Instant now);

    /// Returns true while the movement so far can still become a flick. Once false, always false.
    bool isPossible(Instant now);

    /// Returns the speed to the right, in points a second, if the release now makes it a flick.
    std::optional<double> release(Instant now);

private:
    Point place_;
    double towardsEdge_;
    Instant start_;
    Movement movement_;
    bool isPossible_ = true;
};

}  // namespace vantle
