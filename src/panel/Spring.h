#pragma once

#include "panel/Animation.h"

namespace vantle {

/// The motion of a damped spring from a start to a target, in closed form: it gives the place and
/// the speed at any time, however far apart the frames are. Lengths are in the caller's unit, times
/// in seconds since the motion began. To interrupt a motion without a jump, begin a new spring with
/// the place and the speed of the old one.
class Spring {
public:
    /// The place at one moment, and the speed in units a second.
    struct State {
        double value;
        double velocity;
    };

    /// `animation.response` must be above 0. The spring does not swing if the damping fraction is 1
    /// or more.
    Spring(const Animation& animation, State start, double target);

    State at(double seconds) const;

    /// Returns the time after which the motion stays within `tolerance` (above 0) of the target.
    double settlingTime(double tolerance) const;

private:
    double decay_;      ///< How fast the envelope of the motion falls.
    double frequency_;  ///< Frequency of the swing in radians a second; 0 if there is none.
    double target_;
    double distance_;  ///< Distance from the target at the start.
    double push_;      ///< The part of the offset that the speed at the start adds.
};

}  // namespace vantle
