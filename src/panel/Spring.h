#pragma once

#include "panel/Animation.h"

namespace vantle {

/// The motion of a damped spring from where something is to where it shall be, in closed form:
/// its place and speed at any time, however far apart the frames are. Lengths are in whatever unit
/// the caller uses, times in seconds since the motion began. A motion that is interrupted goes on
/// without a jump: a new spring begins with the place and the speed of the old one.
class Spring {
public:
    /// Where it stands at some moment, and how fast it moves (units a second).
    struct State {
        double value;
        double velocity;
    };

    /// `animation.response` is above 0; a damping fraction of 1 or more does not swing.
    Spring(const Animation& animation, State start, double target);

    State at(double seconds) const;

    /// When the motion stays within `tolerance` (above 0) of the target for good.
    double settlingTime(double tolerance) const;

private:
    double decay_;      ///< How fast the envelope of the motion falls.
    double frequency_;  ///< Of the swinging, in radians a second; 0 when it does not swing.
    double target_;
    double distance_;  ///< From the target at the start.
    double push_;      ///< What the speed at the start adds.
};

}  // namespace vantle
