#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/PanelFixture.h"

namespace vantle {
namespace {

using testing::IsEmpty;
using testing::UnorderedElementsAre;

/// A row of three captures, each thumbnail 100 × 80, 10 apart, from (10, 10).
class MarqueeTest : public fakes::PanelFixture {
protected:
    MarqueeTest() {
        shown = show({"a", "b", "c"});
        for (std::size_t i = 0; i < shown.size(); ++i)
            panel.thumbnails.push_back(
                {shown[i]->id(), {{10 + 110.0 * static_cast<double>(i), 10}, {100, 80}}});
    }

    void drag(const Rect& rect) { panel.window->onMarquee(rect); }
    void release() { panel.window->onMarquee(std::nullopt); }
    const std::set<UUID>& selected() const { return state->selected.value(); }

    std::vector<CapturePointer> shown;
};

TEST_F(MarqueeTest, SelectsTheThumbnailsThatItTouches) {
    drag({{100, 20}, {30, 10}});
    EXPECT_THAT(selected(), UnorderedElementsAre(shown[0]->id(), shown[1]->id()));
    EXPECT_EQ(state->marquee.value(), (Rect{{100, 20}, {30, 10}}));
}

TEST_F(MarqueeTest, EndingItKeepsTheSelectionAndClearsTheRectangle) {
    drag({{5, 5}, {50, 50}});
    release();
    EXPECT_EQ(state->marquee.value(), std::nullopt);
    EXPECT_THAT(selected(), UnorderedElementsAre(shown[0]->id()));
}

TEST_F(MarqueeTest, AClickOnTheBackgroundClearsTheSelection) {
    actions.toggleSelect(shown[1]);
    panel.window->onBackgroundClick();
    EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(MarqueeTest, ALeavingCardHasNoMarquee) {
    drag({{5, 5}, {50, 50}});
    controller().dismiss();
    drag({{5, 5}, {60, 60}});
    EXPECT_EQ(state->marquee.value(), std::nullopt);
    EXPECT_THAT(selected(), IsEmpty());
}

/// The same row with a countdown of three seconds.
class MarqueeCountdownTest : public MarqueeTest {
protected:
    MarqueeCountdownTest() {
        settings.dismissAfter.set(3);
        controller().show(shown[2]);
        time.settle();
    }
};

TEST_F(MarqueeCountdownTest, PausesTheCountdown) {
    drag({{5, 5}, {50, 50}});
    wait(60);
    EXPECT_TRUE(state->visible.value());
    release();
    wait(2.9);
    EXPECT_TRUE(state->visible.value());
    wait(0.2);
    EXPECT_FALSE(state->visible.value());
}

TEST_F(MarqueeCountdownTest, PausesTheCountdownAlthoughThePointerLeavesTheCard) {
    hover(true);
    drag({{5, 5}, {50, 50}});
    hover(false);
    wait(60);
    EXPECT_TRUE(state->visible.value());
}

TEST_F(MarqueeCountdownTest, ItsEndDoesNotStartTheCountdownUnderThePointer) {
    hover(true);
    drag({{5, 5}, {50, 50}});
    release();
    wait(60);
    EXPECT_TRUE(state->visible.value());
}

TEST_F(MarqueeCountdownTest, ACaptureThatArrivesMeanwhileDoesNotStartTheCountdown) {
    drag({{5, 5}, {50, 50}});
    controller().show(capture("d"));
    wait(60);
    EXPECT_TRUE(state->visible.value());
}

TEST_F(MarqueeTest, AfterTheControllerHasGoneThePanelsRequestsDoNothing) {
    const auto onMarquee = panel.window->onMarquee;
    const auto onBackgroundClick = panel.window->onBackgroundClick;
    releaseController();
    onMarquee(Rect{{0, 0}, {400, 400}});
    onBackgroundClick();
}

TEST_F(MarqueeTest, OnlyAPanelOnTheScreenTakesTheKeyboard) {
    controller().takeKeyboard();
    EXPECT_EQ(panel.timesKeyboardTaken, 1);
    controller().dismiss();
    controller().takeKeyboard();
    EXPECT_EQ(panel.timesKeyboardTaken, 1);
}

}  // namespace
}  // namespace vantle
