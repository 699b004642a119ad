// When the space bar is taken from the window of another program, to preview a tile.

#include <gmock/gmock.h>

#include "fakes/VirtualTime.h"
#include "panel/PreviewKeyRule.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PreviewKeyRuleTest : public testing::Test {
protected:
    /// Moves the pointer from outside onto a tile.
    void reach(const std::string& tile) {
        rule.pointerEntered({0, 0});
        rule.pointerMoved({50, 50});
        rule.tileChanged(tile);
    }
    void wait(double seconds) { time.advance(Seconds(seconds)); }

    fakes::VirtualTime time;
    fakes::ManualScheduler scheduler{time};
    std::vector<bool> changes;
    PreviewKeyRule rule{scheduler, [this](bool isTaken) { changes.push_back(isTaken); }};
};

TEST_F(PreviewKeyRuleTest, APointerThatComesToATileTakesTheKey) {
    reach("a");
    EXPECT_TRUE(rule.isTaken());
    EXPECT_THAT(changes, ElementsAre(true));
    EXPECT_EQ(rule.press(), "a");
}

TEST_F(PreviewKeyRuleTest, TheOrderOfMovementAndTileDoesNotMatter) {
    rule.pointerEntered({0, 0});
    rule.tileChanged("a");
    rule.pointerMoved({50, 50});
    EXPECT_TRUE(rule.isTaken());
}

TEST_F(PreviewKeyRuleTest, APointerThatRestsGivesTheKeyBackAndNothingWaitsAnyMore) {
    reach("a");
    wait(2.99);
    EXPECT_TRUE(rule.isTaken());
    wait(0.02);
    EXPECT_FALSE(rule.isTaken());
    EXPECT_THAT(changes, ElementsAre(true, false));
    EXPECT_EQ(rule.press(), "");
    EXPECT_EQ(time.pending(), 0U);
}

TEST_F(PreviewKeyRuleTest, EachMovementBeginsTheTimeAgain) {
    reach("a");
    wait(2);
    rule.pointerMoved({60, 50});
    wait(2.99);
    EXPECT_TRUE(rule.isTaken());
    wait(0.02);
    EXPECT_FALSE(rule.isTaken());
    rule.pointerMoved({70, 50});
    EXPECT_EQ(rule.press(), "a");
}

TEST_F(PreviewKeyRuleTest, MovementsStartOneTimerOnly) {
    reach("a");
    for (int x = 0; x < 1000; x += 5) rule.pointerMoved({static_cast<double>(x), 50});
    EXPECT_EQ(time.pending(), 1U);
    EXPECT_THAT(changes, ElementsAre(true));
}

TEST_F(PreviewKeyRuleTest, AHandThatLetsGoOfTheMouseDoesNotMoveThePointer) {
    reach("a");
    wait(2.9);
    rule.pointerMoved({52, 51});
    rule.pointerMoved({49, 48});
    wait(0.2);
    EXPECT_FALSE(rule.isTaken());
    rule.pointerMoved({52, 51});
    EXPECT_FALSE(rule.isTaken());
}

TEST_F(PreviewKeyRuleTest, SlowMovementsAddUp) {
    rule.pointerEntered({0, 0});
    rule.tileChanged("a");
    for (int x = 1; x <= 4; ++x) rule.pointerMoved({static_cast<double>(x), 0});
    EXPECT_TRUE(rule.isTaken());
}

TEST_F(PreviewKeyRuleTest, LeavingTheTileGivesTheKeyBackAtOnce) {
    reach("a");
    rule.tileChanged("");
    EXPECT_THAT(changes, ElementsAre(true, false));
    EXPECT_EQ(rule.press(), "");
    EXPECT_EQ(time.pending(), 0U);
}

TEST_F(PreviewKeyRuleTest, ThePointerCanGoFromTileToTile) {
    reach("a");
    wait(1);
    rule.pointerMoved({200, 50});
    rule.tileChanged("b");
    EXPECT_EQ(rule.press(), "b");
}

TEST_F(PreviewKeyRuleTest, ATileThatComesUnderAPointerAtRestTakesNothing) {
    rule.pointerEntered({50, 50});
    rule.tileChanged("a");
    EXPECT_FALSE(rule.isTaken()) << "the card has appeared";
    rule.pointerMoved({60, 50});
    wait(0.5);
    rule.tileChanged("b");
    EXPECT_FALSE(rule.isTaken()) << "the neighbour has slid there";
    rule.pointerMoved({70, 50});
    EXPECT_EQ(rule.press(), "b");
}

TEST_F(PreviewKeyRuleTest, APlaceWithoutATileTakesNothing) {
    rule.pointerEntered({0, 0});
    rule.pointerMoved({50, 50});
    EXPECT_THAT(changes, IsEmpty());
    EXPECT_EQ(time.pending(), 0U);
}

TEST_F(PreviewKeyRuleTest, ThePressGivesTheKeyBackUntilThePointerMoves) {
    reach("a");
    EXPECT_EQ(rule.press(), "a");
    EXPECT_THAT(changes, ElementsAre(true, false));
    EXPECT_EQ(rule.press(), "") << "the key repeats itself";
    rule.pointerMoved({60, 50});
    EXPECT_EQ(rule.press(), "a");
}

TEST_F(PreviewKeyRuleTest, AWindowOfThisProgramKeepsItsKey) {
    reach("a");
    rule.setHasKeyboard(true);
    EXPECT_FALSE(rule.isTaken());
    rule.pointerMoved({60, 50});
    EXPECT_FALSE(rule.isTaken());
    rule.setHasKeyboard(false);
    EXPECT_FALSE(rule.isTaken()) << "the next key is meant for the other program";
    rule.pointerMoved({70, 50});
    EXPECT_TRUE(rule.isTaken());
}

TEST_F(PreviewKeyRuleTest, APreviewThatGoesAwayAboveThePointerTakesNothing) {
    reach("a");
    rule.setHasKeyboard(true);
    rule.tileChanged("");
    rule.setHasKeyboard(false);
    // The pointer has moved meanwhile, over the preview.
    rule.pointerEntered({80, 70});
    rule.tileChanged("a");
    rule.pointerMoved({80, 70});
    EXPECT_FALSE(rule.isTaken());
}

TEST_F(PreviewKeyRuleTest, AnInterruptionGivesTheKeyBackUntilThePointerMoves) {
    reach("a");
    rule.interrupted();
    EXPECT_FALSE(rule.isTaken());
    rule.pointerMoved({60, 50});
    EXPECT_TRUE(rule.isTaken());
}

TEST_F(PreviewKeyRuleTest, ARuleThatGoesLeavesNoTimer) {
    {
        PreviewKeyRule other(scheduler, [](bool) {});
        other.pointerEntered({0, 0});
        other.tileChanged("a");
        other.pointerMoved({50, 50});
    }
    EXPECT_EQ(time.pending(), 0U);
}

}  // namespace
}  // namespace vantle
