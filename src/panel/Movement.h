#pragma once

#include <vector>

#include "platform/Scheduler.h"
#include "support/Geometry.h"

namespace vantle {

/// The path of fingers or of a pointer, from which its present speed follows.
class Movement {
public:
    /// Starts a new path at a place of its own. Times must be on one clock; any will do.
    void begin(Instant now);

    void moveBy(const Point& delta, Instant now);

    /// Returns the way from the beginning, in points.
    Point distance() const { return samples_.empty() ? Point{} : samples_.back().place; }

    /// Returns the time of the latest movement.
    Instant latest() const { return samples_.empty() ? Instant{} : samples_.back().at; }

    /// Returns the mean speed of the last tenth of a second, in points a second; 0 if nothing has
    /// moved for so long.
    Point velocity(Instant now) const;

private:
    struct Sample {
        Instant at;
        Point place;
    };

    std::vector<Sample> samples_;  ///< Those that the speed depends on, oldest first.
};

}  // namespace vantle
