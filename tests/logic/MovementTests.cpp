#include <gtest/gtest.h>

#include "panel/Movement.h"

namespace vantle {
namespace {

class MovementTest : public testing::Test {
protected:
    void move(const Point& delta, double after) {
        now += Seconds(after);
        movement.moveBy(delta, now);
    }

    Instant now{Seconds(1000)};
    Movement movement;
};

TEST_F(MovementTest, WithoutAMovementThereIsNoSpeed) {
    EXPECT_EQ(movement.velocity(now), Point{});
    EXPECT_EQ(movement.distance(), Point{});
    movement.begin(now);
    EXPECT_EQ(movement.velocity(now), Point{});
}

TEST_F(MovementTest, TheSpeedIsThatOfTheLastTenthOfASecond) {
    movement.begin(now);
    for (int i = 0; i < 50; ++i) move({1, 0}, 0.01);
    for (int i = 0; i < 10; ++i) move({5, -2}, 0.01);
    EXPECT_NEAR(movement.velocity(now).x, 500, 11);
    EXPECT_NEAR(movement.velocity(now).y, -200, 5);
    EXPECT_EQ(movement.distance(), (Point{100, -20}));
    EXPECT_EQ(movement.latest(), now);
}

TEST_F(MovementTest, ARestSlowsItDown) {
    movement.begin(now);
    for (int i = 0; i < 10; ++i) move({10, 0}, 0.01);
    EXPECT_NEAR(movement.velocity(now + Seconds(0.055)).x, 500, 1e-6);
    EXPECT_EQ(movement.velocity(now + Seconds(0.1)).x, 0);
}

TEST_F(MovementTest, AMovementThatBeganEarlierCountsIfItEndedLately) {
    movement.begin(now);
    move({100, 0}, 0.05);
    move({0, 0}, 0.07);
    EXPECT_NEAR(movement.velocity(now).x, 1000, 1e-6);
}

TEST_F(MovementTest, EventsThatArriveTogetherAreNotInfinitelyFast) {
    movement.begin(now);
    for (int i = 0; i < 4; ++i) move({5, 0}, 0);
    EXPECT_NEAR(movement.velocity(now).x, 1000, 1e-6);
}

TEST_F(MovementTest, AClockThatGoesBackDoesNoHarm) {
    movement.begin(now);
    move({10, 0}, -5);
    EXPECT_NEAR(movement.velocity(now).x, 500, 1e-6);
}

TEST_F(MovementTest, BeginningAgainForgetsThePathBefore) {
    movement.begin(now);
    move({50, 0}, 0.01);
    movement.begin(now);
    EXPECT_EQ(movement.distance(), Point{});
    EXPECT_EQ(movement.velocity(now), Point{});
}

}  // namespace
}  // namespace vantle
