#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "panel/Spring.h"

namespace vantle {
namespace {

constexpr Animation swinging{.response = 0.5, .dampingFraction = 0.82};
constexpr Animation critical{.response = 0.5, .dampingFraction = 1};
constexpr double tolerance = 0.001;

/// Returns the farthest point beyond 1 of a motion from 0 to 1.
double overshoot(const Animation& animation) {
    const Spring spring(animation, {0, 0}, 1);
    double farthest = 0;
    for (int i = 0; i < 2000; ++i) farthest = std::max(farthest, spring.at(i / 1000.0).value);
    return farthest - 1;
}

TEST(Spring, BeginsAtTheCurrentPlaceAndSpeed) {
    for (const Animation& animation : {swinging, critical}) {
        const Spring spring(animation, {20, -300}, 100);
        EXPECT_DOUBLE_EQ(spring.at(0).value, 20);
        EXPECT_NEAR(spring.at(0).velocity, -300, 1e-9);
    }
}

TEST(Spring, FollowsTheEquationOfADampedSpring) {
    // x'' = -stiffness (x - target) - damping x', integrated in small steps.
    for (const Animation& animation : {swinging, critical}) {
        const double omega = 2 * M_PI / animation.response;
        const Spring spring(animation, {0, 50}, 10);
        double x = 0;
        double v = 50;
        constexpr double step = 1e-6;
        for (int i = 0; i < 400'000; ++i) {
            v += (-omega * omega * (x - 10) - 2 * animation.dampingFraction * omega * v) * step;
            x += v * step;
        }
        EXPECT_NEAR(spring.at(0.4).value, x, 1e-3);
        EXPECT_NEAR(spring.at(0.4).velocity, v, 2e-2);
    }
}

TEST(Spring, OvershootsByTheAmountOfItsDamping) {
    // In theory this is exp(-π ζ / √(1 - ζ²)).
    EXPECT_NEAR(overshoot({.response = 0.5, .dampingFraction = 0.82}), 0.0111, 5e-4);
    EXPECT_NEAR(overshoot({.response = 0.3, .dampingFraction = 0.7}), 0.0460, 5e-4);
    EXPECT_LE(overshoot(critical), 0);
    EXPECT_LE(overshoot({.response = 0.5, .dampingFraction = 3}), 0);
}

TEST(Spring, IsSettledAfterItsSettlingTime) {
    for (const Animation& animation : {swinging, critical})
        for (const double velocity : {0.0, 4000.0, -4000.0}) {
            const Spring spring(animation, {0, velocity}, 300);
            const double settled = spring.settlingTime(tolerance);
            EXPECT_LT(settled, 3);
            for (double t = settled; t < settled + 2; t += 0.01)
                EXPECT_NEAR(spring.at(t).value, 300, tolerance * 1.01) << t;
        }
}

TEST(Spring, IsSettledAtOnceIfThereIsNothingToDo) {
    EXPECT_EQ(Spring(swinging, {7, 0}, 7).settlingTime(tolerance), 0);
    EXPECT_EQ(Spring(critical, {7, 0}, 7).settlingTime(tolerance), 0);
}

TEST(Spring, AnInterruptedMotionContinuesWithoutAJump) {
    const Spring first(swinging, {0, 0}, 100);
    const auto interrupted = first.at(0.1);
    const Spring second(swinging, interrupted, 0);
    const auto soon = second.at(0.001);
    EXPECT_NEAR(soon.value, interrupted.value + interrupted.velocity * 0.001, 0.05);
    EXPECT_GT(soon.value, interrupted.value);
}

}  // namespace
}  // namespace vantle
