// How the card and its tiles move, frame by frame.

#include <gmock/gmock.h>

#include "CardFixture.h"
#include "panel/Spring.h"
#include "panel/views/Appearance.h"

namespace vantle {
namespace {

class MotionTest : public CardFixture {
protected:
    MotionTest() { Appearance::follow(&desktop); }
    ~MotionTest() override {
        panel.reset();
        Appearance::follow(nullptr);
    }

    QQuickItem* card() const {
        return PassthroughContainerView::findGlass(*window().contentItem())->parentItem();
    }
    static std::size_t count(const std::vector<QQuickItem*>& found) { return found.size(); }

    CapturePointer a = capture("a");
    CapturePointer b = capture("b");
    CapturePointer c = capture("c");
    DesktopAppearance desktop;
};

TEST_F(MotionTest, TheCardSlidesInFromTheNearEdge) {
    for (const auto& [corner, direction] :
         {std::pair{PanelCorner::bottomRight, 1}, std::pair{PanelCorner::topLeft, -1}}) {
        state.corner = corner;
        state.visible.set(false);
        show({a});
        makeCard();
        state.visible.set(true);
        frames.advance(32);
        const double early = card()->x();
        EXPECT_LT(card()->opacity(), 0.3);
        rest();
        EXPECT_EQ(card()->opacity(), 1);
        EXPECT_GT((early - card()->x()) * direction, 200);
    }
}

TEST_F(MotionTest, ACardThatReturnsWhileLeavingTurnsWithoutAJump) {
    show({a});
    makeCard();
    state.visible.set(false);
    frames.advance(96);
    const double leaving = card()->x();
    state.visible.set(true);
    EXPECT_EQ(card()->x(), leaving);
    frames.advance(16);
    EXPECT_NEAR(card()->x(), leaving, 40);
    rest();
    EXPECT_EQ(card()->x(), 458);
}

TEST_F(MotionTest, ATileGrowsIntoTheRow) {
    show({a, b});
    makeCard();
    state.captures.set({a, b, c});
    frames.advance(16);
    EXPECT_LT(tile(2)->scale(), 0.75);
    EXPECT_LT(tile(2)->opacity(), 0.2);
    EXPECT_EQ(tile(2)->transformOrigin(), QQuickItem::Center);
    rest();
    EXPECT_EQ(tile(2)->scale(), 1);
    EXPECT_EQ(tile(2)->opacity(), 1);
}

TEST_F(MotionTest, TheFirstTileAppearsWithTheCardAndTheNextByItself) {
    state.visible.set(false);
    makeCard();
    state.captures.set({a});
    state.visible.set(true);
    frames.advance(32);
    EXPECT_EQ(tile(0)->scale(), 1);
    EXPECT_EQ(tile(0)->opacity(), 1);
    state.captures.set({a, b});
    frames.advance(32);
    EXPECT_LT(tile(1)->scale(), 1);
}

TEST_F(MotionTest, ACardThatReturnsIsIndependentOfThePreviousOne) {
    std::vector<CapturePointer> many;
    for (int i = 0; i < 12; ++i) many.push_back(capture(std::to_string(i)));
    show(many);
    makeCard();
    state.visible.set(false);
    rest();
    state.captures.set({});
    panel->orderOut();
    panel->orderFrontRegardless();
    state.captures.set({a});
    state.visible.set(true);
    frames.advance(32);
    EXPECT_EQ(glassFrame().size(), QSizeF(328, 254));
    EXPECT_EQ(frameIn(*tile(0), *item("TileRow")), QRectF(10, 10, 304, 190));
}

TEST_F(MotionTest, ALeavingTileShrinksAndFadesInPlace) {
    show({a, b, c});
    makeCard();
    const double x = tile(1)->x();
    state.captures.set({a, c});
    frames.advance(96);
    ASSERT_EQ(count(items("CaptureTile")), 3u);
    EXPECT_EQ(tile(1)->x(), x);
    EXPECT_LT(tile(1)->scale(), 1);
    EXPECT_GT(tile(1)->scale(), 0.79);
    EXPECT_LT(tile(1)->opacity(), 1);
    rest();
    EXPECT_EQ(count(items("CaptureTile")), 2u);
}

TEST_F(MotionTest, ATileThatReturnsWhileLeavingStays) {
    show({a, b, c});
    makeCard();
    state.captures.set({a, c});
    frames.advance(96);
    state.captures.set({a, c, b});
    rest();
    ASSERT_EQ(count(items("CaptureTile")), 3u);
    EXPECT_EQ(tile(2)->opacity(), 1);
    EXPECT_EQ(tile(2)->x(), 340);
}

TEST_F(MotionTest, TheCardAndItsTilesChangeInStep) {
    show({a});
    makeCard();
    state.captures.set({a, b});
    for (int i = 0; i < 20; ++i) {
        frames.advance(16);
        const double part = (glassFrame().width() - 328) / (438 - 328);
        EXPECT_NEAR(tile(0)->width(), 304 + (202 - 304) * part, 0.6);
    }
}

TEST_F(MotionTest, RemovalsHaveTheirOwnSpring) {
    show({a, b, c});
    makeCard();
    state.animate({.response = 0.45, .dampingFraction = 0.82}, [&] { state.captures.set({a, b}); });
    frames.advance(100);
    const Spring expected({.response = 0.45, .dampingFraction = 0.82}, {524, 0}, 438);
    EXPECT_NEAR(glassFrame().width(), expected.at(0.1).value, 0.5);
    rest();
    state.captures.set({a, b, c});
    frames.advance(100);
    const Spring arrival({.response = 0.55, .dampingFraction = 0.8}, {438, 0}, 524);
    EXPECT_NEAR(glassFrame().width(), arrival.at(0.1).value, 0.5);
}

TEST_F(MotionTest, ACardWithoutCapturesLeavesUnchanged) {
    show({a});
    makeCard();
    state.captures.set({});
    state.visible.set(false);
    frames.advance(96);
    EXPECT_EQ(glassFrame().size(), QSizeF(328, 254));
    EXPECT_EQ(count(items("CaptureTile")), 1u);
    EXPECT_EQ(tile(0)->opacity(), 1) << "it goes with the card";
    rest();
    panel->orderOut();
    EXPECT_EQ(count(items("CaptureTile")), 0u);
}

TEST_F(MotionTest, NothingFliesWithReducedMotion) {
    desktop.look.set({.reducesMotion = true});
    state.visible.set(false);
    show({a});
    makeCard();
    state.visible.set(true);
    frames.advance(32);
    EXPECT_EQ(card()->x(), 458);
    EXPECT_LT(card()->opacity(), 1);
    rest();
    state.captures.set({a, b});
    EXPECT_EQ(glassFrame().width(), 438);
    EXPECT_EQ(tile(1)->scale(), 1);
    frames.advance(32);
    EXPECT_LT(tile(1)->opacity(), 1);
    rest();
    EXPECT_EQ(tile(1)->opacity(), 1);
}

TEST_F(MotionTest, ThumbnailsAreScaledOncePerSizeAndNotPerFrame) {
    show({a});
    makeCard();
    const auto source = [this] {
        return item("QQuickImage", item("DraggableThumbnail"))->property("sourceSize").toSizeF();
    };
    state.captures.set({a, b});
    EXPECT_EQ(source(), QSizeF(202, 126));
    frames.advance(64);
    EXPECT_GT(tile(0)->width(), 210);
    EXPECT_EQ(source(), QSizeF(202, 126));
}

}  // namespace
}  // namespace vantle
