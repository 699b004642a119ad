#include <gtest/gtest.h>

#include "panel/Flick.h"

namespace vantle {
namespace {

/// A pointer that is pressed on the background of a card in a right corner.
class FlickTest : public testing::Test {
protected:
    /// Moves that far within that time, in steps of a hundredth of a second.
    void move(const Point& way, double seconds) {
        const int steps = static_cast<int>(seconds * 100 + 0.5);
        for (int i = 0; i < steps; ++i) {
            now += Seconds(0.01);
            place.x += way.x / steps;
            place.y += way.y / steps;
            flick.move(place, now);
        }
    }
    void wait(double seconds) { now += Seconds(seconds); }
    void pressNearLeftEdge() { flick = Flick(place, ScreenSide::left, now); }

    Instant now{Seconds(1000)};
    Point place{300, 200};
    Flick flick{place, ScreenSide::right, now};
};

TEST_F(FlickTest, AFastMovementToTheNearEdgeIsAFlick) {
    move({120, 10}, 0.1);
    EXPECT_TRUE(flick.isPossible(now));
    EXPECT_NEAR(flick.release(now).value_or(0), 1200, 1);
}

TEST_F(FlickTest, InALeftCornerItGoesToTheLeft) {
    pressNearLeftEdge();
    move({-120, 10}, 0.1);
    EXPECT_NEAR(flick.release(now).value_or(0), -1200, 1);
    place = {300, 200};
    pressNearLeftEdge();
    move({120, 10}, 0.1);
    EXPECT_FALSE(flick.release(now));
}

TEST_F(FlickTest, AwayFromTheEdgeItIsNone) {
    move({-10, 0}, 0.01);
    EXPECT_FALSE(flick.isPossible(now));
    move({200, 0}, 0.1);
    EXPECT_FALSE(flick.release(now)) << "what has become a rubber band stays one";
}

TEST_F(FlickTest, AMovementThatIsNotClearlySidewaysIsNone) {
    move({120, 41}, 0.1);
    EXPECT_FALSE(flick.isPossible(now));
    EXPECT_FALSE(flick.release(now));
}

TEST_F(FlickTest, ALongPressIsNone) {
    wait(0.2);
    move({120, 0}, 0.04);
    EXPECT_TRUE(flick.isPossible(now));
    wait(0.02);
    EXPECT_FALSE(flick.isPossible(now));
    EXPECT_FALSE(flick.release(now));
}

TEST_F(FlickTest, ASlowMovementIsNone) {
    move({69, 0}, 0.1);
    EXPECT_TRUE(flick.isPossible(now)) << "it can still become faster";
    EXPECT_FALSE(flick.release(now));
    move({11, 0}, 0.01);
    EXPECT_TRUE(flick.release(now));
}

TEST_F(FlickTest, APointerThatRestsBeforeTheReleaseIsNotThrown) {
    move({120, 0}, 0.1);
    wait(0.1);
    EXPECT_TRUE(flick.isPossible(now));
    EXPECT_FALSE(flick.release(now));
}

TEST_F(FlickTest, AShortMovementIsNone) {
    move({39, 0}, 0.03);
    EXPECT_FALSE(flick.release(now));
}

}  // namespace
}  // namespace vantle
