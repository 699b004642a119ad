#include <gmock/gmock.h>

#include <utility>
#include <vector>

#include "panel/Swipe.h"

namespace vantle {
namespace {

using testing::AllOf;
using testing::Each;
using testing::Field;
using testing::Ge;
using testing::Gt;
using testing::Le;
using testing::Lt;

using Action = Swipe::Action;
using Decision = Swipe::Decision;
using Phase = Swipe::Phase;

auto does(Action action) {
    return Field("action", &Decision::action, action);
}

/// Fingers that begin on the background of a card in a right corner, whose row does not scroll.
class SwipeTest : public testing::Test {
protected:
    static constexpr Seconds frame{0.01};

    Decision step(const Point& delta, Phase phase = Phase::moves) {
        return swipe.step({delta, phase, now}, ground);
    }
    void begin() { (void)step({}, Phase::begins); }
    Decision lift() { return step({}, Phase::ends); }
    /// Moves the fingers that far in equal steps, one each frame, and returns the last decision.
    Decision move(const Point& way, int steps = 20, Phase phase = Phase::moves) {
        Decision last;
        for (int i = 0; i < steps; ++i) {
            now += frame;
            last = step({way.x / steps, way.y / steps}, phase);
            all.push_back(last);
        }
        return last;
    }
    void wait(double seconds) { now += Seconds(seconds); }
    /// Makes a whole gesture without any speed at its end.
    Decision gesture(const Point& way) {
        begin();
        (void)move(way);
        wait(1);
        return lift();
    }
    void useTile() { ground.tile = "first"; }
    /// A row that is wider than the card, scrolled so far that it can follow or not.
    void useRow(bool canFollow) {
        ground.rowOverflows = true;
        ground.rowCanFollow = canFollow;
    }

    Instant now{Seconds(1000)};
    Swipe swipe;
    Swipe::Ground ground;
    std::vector<Decision> all;
};

TEST_F(SwipeTest, TheCardFollowsTheFingersToTheNearEdge) {
    begin();
    const Decision near = move({20, 0});
    EXPECT_THAT(near, does(Action::moveCard));
    EXPECT_NEAR(near.offset, 20, 2);
    EXPECT_GT(move({20, 0}).offset, near.offset);
}

TEST_F(SwipeTest, NothingFollowsBeforeADirectionIsClear) {
    begin();
    EXPECT_EQ(step({7.9, 0}), Decision{});
    EXPECT_THAT(step({0.2, 0}), does(Action::moveCard));
}

TEST_F(SwipeTest, AMovementBetweenTheAxesWaitsLonger) {
    useTile();
    begin();
    EXPECT_EQ(step({12, 10}), Decision{});
    EXPECT_THAT(step({6, 6}), does(Action::moveCard));
}

TEST_F(SwipeTest, ItFollowsWithResistance) {
    begin();
    EXPECT_LT(move({200, 0}).offset, 150);
    EXPECT_LT(move({2000, 0}).offset, 240);
}

TEST_F(SwipeTest, TheFirstClearDirectionHolds) {
    useTile();
    begin();
    (void)move({20, 0});
    (void)move({0, 300});
    EXPECT_THAT(all.back(), does(Action::moveCard));
    EXPECT_NEAR(all.back().offset, 20, 2);
}

TEST_F(SwipeTest, AWayOfAHundredPointsDismissesTheCard) {
    EXPECT_THAT(gesture({101, 0}), does(Action::dismissCard));
}

TEST_F(SwipeTest, AShorterWayWithoutSpeedSpringsBack) {
    EXPECT_THAT(gesture({99, 0}), does(Action::releaseCard));
}

TEST_F(SwipeTest, AFastGestureNeedsOnlyAShortWay) {
    begin();
    (void)move({30, 0}, 4);
    const Decision end = lift();
    EXPECT_THAT(end, does(Action::dismissCard));
    EXPECT_GT(end.velocity, 500);
}

TEST_F(SwipeTest, AFastTouchIsNotASwipe) {
    begin();
    (void)move({20, 0}, 2);
    EXPECT_THAT(lift(), does(Action::releaseCard));
}

TEST_F(SwipeTest, FingersThatTurnBackDismissNothing) {
    begin();
    (void)move({160, 0});
    (void)move({-40, 0}, 10);
    const Decision end = lift();
    EXPECT_THAT(end, does(Action::releaseCard));
    EXPECT_LT(end.velocity, 0) << "it springs back with the speed of the fingers";
}

TEST_F(SwipeTest, SpeedThatWasLongAgoDoesNotCount) {
    begin();
    (void)move({60, 0}, 5);
    wait(0.2);
    EXPECT_THAT(lift(), does(Action::releaseCard));
}

TEST_F(SwipeTest, InALeftCornerTheNearEdgeIsTheLeftOne) {
    ground.nearEdge = ScreenSide::left;
    EXPECT_THAT(gesture({101, 0}), does(Action::releaseCard));
    EXPECT_THAT(gesture({-101, 0}), does(Action::dismissCard));
    EXPECT_LT(all.back().offset, -70);
}

TEST_F(SwipeTest, TheOtherWayTheCardOnlyStretches) {
    begin();
    EXPECT_THAT(move({-400, 0}),
                AllOf(does(Action::moveCard), Field(&Decision::offset, AllOf(Lt(-20), Ge(-24)))));
    EXPECT_THAT(lift(), does(Action::releaseCard));
}

TEST_F(SwipeTest, AStretchedCardIsNotDismissedWhenTheFingersTurn) {
    begin();
    (void)move({-30, 0});
    all.clear();
    (void)move({500, 0});
    EXPECT_THAT(all, Each(Field(&Decision::offset, Le(0))));
    EXPECT_THAT(lift(), does(Action::releaseCard));
}

TEST_F(SwipeTest, ARowThatCanFollowScrolls) {
    useRow(true);
    begin();
    (void)move({400, 0});
    double scrolled = 0;
    for (const auto& decision : all) scrolled += decision.offset;
    EXPECT_NEAR(scrolled, 400, 1e-6) << "with what was held back until the direction was clear";
    EXPECT_EQ(lift(), Decision{});
}

TEST_F(SwipeTest, AGestureThatScrolledNeverDismisses) {
    useRow(true);
    begin();
    (void)move({100, 0});
    useRow(false);
    all.clear();
    (void)move({400, 0});
    EXPECT_THAT(all, Each(does(Action::scrollRow)));
    EXPECT_EQ(lift(), Decision{});
}

TEST_F(SwipeTest, ANewGestureAtTheEndOfTheRowDismisses) {
    useRow(false);
    EXPECT_THAT(gesture({150, 0}), does(Action::dismissCard));
}

TEST_F(SwipeTest, AwayFromTheEdgeARowScrollsEvenAtItsEnd) {
    useRow(false);
    begin();
    (void)move({-30, 0});
    EXPECT_THAT(move({60, 0}), does(Action::scrollRow));
}

TEST_F(SwipeTest, ATileFollowsUpAndDown) {
    useTile();
    begin();
    const Decision up = move({0, -30});
    EXPECT_THAT(up, AllOf(does(Action::moveTile), Field(&Decision::tile, "first")));
    EXPECT_NEAR(up.offset, -27, 2);
    EXPECT_GT(move({0, 80}).offset, 30);
}

TEST_F(SwipeTest, ATileIsDismissedAfterSixtyPointsInEitherDirection) {
    useTile();
    for (const double way : {61.0, -61.0}) {
        const Decision end = gesture({0, way});
        EXPECT_THAT(end, AllOf(does(Action::dismissTile), Field(&Decision::tile, "first")));
        EXPECT_EQ(end.offset > 0, way > 0) << "it leaves in the direction of the fingers";
        wait(1);
    }
    EXPECT_THAT(gesture({0, -59}), does(Action::releaseTile));
}

TEST_F(SwipeTest, AFastSwipeDismissesATile) {
    useTile();
    begin();
    (void)move({0, -30}, 4);
    EXPECT_THAT(lift(), AllOf(does(Action::dismissTile), Field(&Decision::velocity, Lt(-500))));
}

TEST_F(SwipeTest, TheGestureKeepsTheTileThatItBeganOn) {
    useTile();
    begin();
    (void)move({0, 30});
    ground.tile = "second";
    (void)move({0, 60});
    EXPECT_EQ(lift().tile, "first");
}

TEST_F(SwipeTest, OnATileInARowThatScrollsUpAndDownDismissesToo) {
    useTile();
    useRow(true);
    EXPECT_THAT(gesture({0, 80}), does(Action::dismissTile));
}

TEST_F(SwipeTest, OnTheBackgroundUpAndDownDoNothing) {
    begin();
    (void)move({0, 400});
    EXPECT_THAT(all, Each(Decision{}));
    EXPECT_EQ(lift(), Decision{});
}

TEST_F(SwipeTest, OnTheBackgroundUpAndDownScrollAWideRow) {
    useRow(true);
    begin();
    EXPECT_EQ(move({0, 40}, 1), (Decision{.action = Action::scrollRow, .offset = 40}));
    EXPECT_EQ(lift(), Decision{});
}

TEST_F(SwipeTest, WithoutPhasesASilenceEndsTheGesture) {
    (void)move({150, 0}, 20, Phase::unknown);
    EXPECT_EQ(swipe.patience(), Seconds(0.15));
    EXPECT_TRUE(swipe.isUnderWay());
    EXPECT_THAT(swipe.fallSilent(), does(Action::dismissCard));
    EXPECT_FALSE(swipe.isUnderWay());
}

TEST_F(SwipeTest, WithoutPhasesTheSpeedBeforeTheSilenceCounts) {
    (void)move({30, 0}, 4, Phase::unknown);
    EXPECT_THAT(swipe.fallSilent(), does(Action::dismissCard));
    wait(0.15);
    (void)move({30, 0}, 40, Phase::unknown);
    EXPECT_THAT(swipe.fallSilent(), does(Action::releaseCard));
}

TEST_F(SwipeTest, FingersThatRestForVeryLongDismissNothing) {
    begin();
    (void)move({150, 0});
    EXPECT_EQ(swipe.patience(), Seconds(3));
    EXPECT_THAT(swipe.fallSilent(), does(Action::releaseCard));
    EXPECT_EQ(move({100, 0}), Decision{}) << "the rest of the gesture does nothing";
    EXPECT_EQ(lift(), Decision{});
    wait(1);
    EXPECT_THAT(gesture({150, 0}), does(Action::dismissCard));
}

TEST_F(SwipeTest, MomentumAfterTheEndMovesNothing) {
    useTile();
    useRow(true);
    EXPECT_THAT(gesture({0, 80}), does(Action::dismissTile));
    ground.tile = "second";
    EXPECT_EQ(move({0, 400}, 20, Phase::coasts), Decision{});
    EXPECT_FALSE(swipe.isUnderWay());
}

TEST_F(SwipeTest, MomentumThatLooksLikeAGestureDismissesNoSecondTile) {
    useTile();
    (void)gesture({0, 80});
    EXPECT_EQ(lift(), Decision{}) << "each axis may have an end of its own";
    ground.tile = "second";
    all.clear();
    now += frame;
    (void)gesture({0, 300});
    EXPECT_THAT(all, Each(Decision{}));
    wait(0.11);
    EXPECT_THAT(gesture({0, 80}),
                AllOf(does(Action::dismissTile), Field(&Decision::tile, "second")));
}

TEST_F(SwipeTest, MomentumAfterScrollingScrollsOn) {
    useRow(true);
    (void)gesture({100, 0});
    EXPECT_EQ(move({40, 0}, 1, Phase::coasts),
              (Decision{.action = Action::scrollRow, .offset = 40}));
    ground.rowOverflows = false;
    EXPECT_EQ(move({40, 0}, 1, Phase::coasts), Decision{});
}

TEST_F(SwipeTest, ACancelledGestureSpringsBackAndDoesNoMore) {
    useTile();
    begin();
    (void)move({0, 100});
    EXPECT_THAT(swipe.cancel(), AllOf(does(Action::releaseTile), Field(&Decision::tile, "first")));
    EXPECT_EQ(move({0, 100}), Decision{});
    EXPECT_EQ(swipe.cancel(), Decision{});
    EXPECT_EQ(lift(), Decision{});
    EXPECT_EQ(swipe.cancel(), Decision{}) << "there is none";
}

TEST_F(SwipeTest, ABeginWithoutAnEndReleasesWhatWasMoved) {
    begin();
    (void)move({60, 0});
    EXPECT_THAT(step({}, Phase::begins), does(Action::releaseCard));
    EXPECT_THAT(move({150, 0}), does(Action::moveCard));
    wait(1);
    EXPECT_THAT(lift(), does(Action::dismissCard));
}

TEST_F(SwipeTest, AnEndWithoutABeginDoesNothing) {
    EXPECT_EQ(lift(), Decision{});
    EXPECT_EQ(swipe.fallSilent(), Decision{});
}

}  // namespace
}  // namespace vantle
