#include <gtest/gtest.h>

#include "panel/PressGuard.h"

namespace vantle {
namespace {

/// A pointer that rests on the first of two neighbours, on a card that has not changed for long.
class PressGuardTest : public testing::Test {
protected:
    static constexpr Point place{100, 100};

    PressGuardTest() {
        guard.pointerEntered({90, 100}, "first", now);
        guard.pointerMoved(place, "first");
    }

    void wait(double seconds) { now += Seconds(seconds); }
    bool press(const std::string& target, const Point& point = place) {
        return guard.allowsPress(point, target, now);
    }
    /// The first target leaves, and its neighbour slides under the pointer a little later.
    void slideSecondUnder(double after = 0.1) {
        guard.contentChanged(now);
        wait(after);
        guard.targetChanged("second", now);
    }

    Instant now{Seconds(1000)};
    PressGuard guard{{.interval = Seconds(0.4), .distance = 5}};
};

TEST_F(PressGuardTest, APressAfterThePointerHasMovedThereCounts) {
    EXPECT_TRUE(press("first"));
}

TEST_F(PressGuardTest, ATargetThatSlidUnderThePointerTakesNoPressForTheTimeOfADoubleClick) {
    slideSecondUnder();
    EXPECT_FALSE(press("second"));
    wait(0.39);
    EXPECT_FALSE(press("second"));
    wait(0.02);
    EXPECT_TRUE(press("second"));
}

TEST_F(PressGuardTest, TheSecondOfTwoQuickClicksDoesNotReachTheNeighbour) {
    for (const double gap : {0.2, 0.3, 0.4, 0.5}) {
        SCOPED_TRACE(gap);
        wait(10);
        guard.targetChanged("first", now);
        guard.pointerMoved({0, 0}, "");
        guard.pointerMoved(place, "first");
        EXPECT_TRUE(press("first"));
        slideSecondUnder(0.15);
        wait(gap - 0.15);
        EXPECT_FALSE(press("second"));
    }
}

TEST_F(PressGuardTest, APressCountsAfterThePointerHasMoved) {
    slideSecondUnder();
    guard.pointerMoved({106, 100}, "second");
    EXPECT_TRUE(press("second", {106, 100}));
}

TEST_F(PressGuardTest, AShakingHandDoesNotMoveThePointer) {
    slideSecondUnder();
    guard.pointerMoved({104, 102}, "second");
    guard.pointerMoved({98, 101}, "second");
    EXPECT_FALSE(press("second", {98, 101}));
}

TEST_F(PressGuardTest, AShakingHandMayCrossAnEdge) {
    guard.contentChanged(now);
    guard.pointerMoved({103, 100}, "second");
    EXPECT_TRUE(press("second", {103, 100})) << "it was the pointer that went there";
}

TEST_F(PressGuardTest, ATargetThatStaysUnderThePointerTakesPressesWhileOthersMove) {
    guard.contentChanged(now);
    guard.targetChanged("first", now);
    EXPECT_TRUE(press("first"));
}

TEST_F(PressGuardTest, ATargetThatAppearsBecauseOfThePointerTakesPresses) {
    wait(5);
    guard.targetChanged("button", now);
    EXPECT_TRUE(press("button"));
}

TEST_F(PressGuardTest, ACardThatAppearsUnderThePointerTakesNoPressAtOnce) {
    guard.contentChanged(now);
    wait(0.3);
    guard.pointerEntered({300, 300}, "first", now);
    EXPECT_FALSE(press("first", {300, 300}));
    wait(0.5);
    EXPECT_TRUE(press("first", {300, 300}));
}

TEST_F(PressGuardTest, APointerThatArrivesFromElsewhereAtThatMomentCounts) {
    guard.contentChanged(now, Point{10, 10});
    wait(0.3);
    guard.pointerEntered({300, 300}, "first", now);
    EXPECT_TRUE(press("first", {300, 300}));
}

TEST_F(PressGuardTest, ACardThatAppearsUnderAKnownPointerTakesNoPressAtOnce) {
    guard.contentChanged(now, Point{300, 301});
    wait(0.3);
    guard.pointerEntered({300, 300}, "first", now);
    EXPECT_FALSE(press("first", {300, 300}));
}

TEST_F(PressGuardTest, APressElsewhereMeansThatThePointerHasMoved) {
    slideSecondUnder();
    EXPECT_TRUE(press("second", {300, 100}));
    // From now on the pointer rests there.
    guard.contentChanged(now);
    wait(0.1);
    guard.targetChanged("third", now);
    EXPECT_FALSE(press("third", {301, 100}));
}

TEST_F(PressGuardTest, ACardTakesPressesASecondAfterItAppeared) {
    guard.contentChanged(now);
    wait(0.99);
    guard.pointerEntered({300, 300}, "first", now);
    EXPECT_FALSE(press("first", {300, 300}));
    guard.contentChanged(now);
    wait(1);
    guard.pointerEntered({200, 300}, "second", now);
    EXPECT_TRUE(press("second", {200, 300}));
}

TEST_F(PressGuardTest, ACardAtRestTakesThePressOfAnArrivingPointer) {
    guard.contentChanged(now);
    wait(2);
    guard.pointerEntered({300, 300}, "first", now);
    EXPECT_TRUE(press("first", {300, 300}));
}

TEST_F(PressGuardTest, TheSecondClickOfADoubleClickNeverReachesAnotherTarget) {
    EXPECT_TRUE(press("first"));
    wait(0.2);
    // No change of the content was reported.
    EXPECT_FALSE(press("second", {102, 100}));
}

TEST_F(PressGuardTest, TheSecondClickOfADoubleClickOnTheSameTargetCounts) {
    EXPECT_TRUE(press("first"));
    wait(0.2);
    EXPECT_TRUE(press("first"));
}

TEST_F(PressGuardTest, TwoClicksInDifferentPlacesAreNoDoubleClick) {
    EXPECT_TRUE(press("first"));
    wait(0.1);
    EXPECT_TRUE(press("second", {120, 100}));
}

TEST_F(PressGuardTest, AChangeThatIsNotDrawnYetCountsAsWell) {
    guard.contentChanged(now);
    EXPECT_FALSE(press("second"));
}

TEST_F(PressGuardTest, APressWithoutAPointerMovementCounts) {
    guard.contentChanged(now);
    EXPECT_TRUE(press("second", {300, 20})) << "a finger";
}

}  // namespace
}  // namespace vantle
