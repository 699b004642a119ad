#include "panel/Spring.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vantle {

// With unit mass the response is the period of the undamped motion. Therefore the stiffness is the
// square of 2π / response, and the damping is 2 × fraction × 2π / response. A fraction above 1 is
// treated as 1, because nothing needs the slower motion of an overdamped spring.
Spring::Spring(const Animation& animation, State start, double target)
    : target_(target), distance_(start.value - target) {
    const double undamped = 2 * std::numbers::pi / animation.response;
    const double fraction = std::clamp(animation.dampingFraction, 0.0, 1.0);
    decay_ = fraction * undamped;
    frequency_ = undamped * std::sqrt(1 - fraction * fraction);
    const double speed = start.velocity + decay_ * distance_;
    push_ = frequency_ > 0 ? speed / frequency_ : speed;
}

Spring::State Spring::at(double seconds) const {
    const double envelope = std::exp(-decay_ * seconds);
    if (frequency_ > 0) {
        const double cosine = std::cos(frequency_ * seconds);
        const double sine = std::sin(frequency_ * seconds);
        const double offset = distance_ * cosine + push_ * sine;
        const double turning = frequency_ * (push_ * cosine - distance_ * sine);
        return {target_ + envelope * offset, envelope * (turning - decay_ * offset)};
    }
    const double offset = distance_ + push_ * seconds;
    return {target_ + envelope * offset, envelope * (push_ - decay_ * offset)};
}

double Spring::settlingTime(double tolerance) const {
    if (decay_ <= 0) return HUGE_VAL;
    const double swing = std::hypot(distance_, push_);
    if (frequency_ > 0) return std::max(0.0, std::log(swing / tolerance) / decay_);
    // Without a swing the offset is (distance + push × t) e^(-decay t). The bound on its factor
    // grows with the time itself, so the time is found by iteration.
    double seconds = 0;
    for (int round = 0; round < 8; ++round) {
        const double bound = std::abs(distance_) + std::abs(push_) * seconds;
        seconds = std::max(seconds, std::log(std::max(bound / tolerance, 1.0)) / decay_);
    }
    return seconds;
}

}  // namespace vantle
