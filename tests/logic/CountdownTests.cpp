#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/CapturedLog.h"
#include "fakes/PanelFixture.h"

namespace vantle {
namespace {

using testing::ElementsAre;

class CountdownTest : public fakes::PanelFixture {
protected:
    double progress() { return controller().state().progress.value(); }
};

TEST_F(CountdownTest, NoTimerIsScheduledWithoutADismissalTime) {
    for (const double seconds : {0.0, -3.0}) {
        settings.dismissAfter.set(seconds);
        show({"a", "b"});
        hover(true);
        hover(false);
        EXPECT_EQ(time.pending(), 0u);
        wait(3600);
        EXPECT_EQ(progress(), 1.0);
        EXPECT_TRUE(controller().isVisible());
    }
}

TEST_F(CountdownTest, RunsOutAndDismisses) {
    settings.dismissAfter.set(10);
    show({"a", "b"});
    wait(9.99);
    EXPECT_TRUE(controller().isVisible());
    wait(0.01);
    EXPECT_FALSE(controller().isVisible());
    wait(0.5);
    EXPECT_FALSE(panel.isOnScreen);
    wait(2);
    EXPECT_EQ(time.pending(), 0u);
}

TEST_F(CountdownTest, ProgressFallsThirtyTimesASecond) {
    settings.dismissAfter.set(10);
    show({"a"});
    wait(5);
    EXPECT_NEAR(progress(), 0.5, 0.01);
    int announced = 0;
    const auto subscription = state->progress.observeChanges([&](double) { ++announced; });
    wait(2);
    EXPECT_NEAR(announced, 60, 1);
}

TEST_F(CountdownTest, EachNewCaptureRestartsIt) {
    settings.dismissAfter.set(10);
    show({"a"});
    wait(8);
    show({"b"});
    EXPECT_EQ(progress(), 1.0);
    wait(9.9);
    EXPECT_TRUE(controller().isVisible());
    wait(0.2);
    EXPECT_FALSE(controller().isVisible());
}

TEST_F(CountdownTest, PausesWhileThePointerIsOverTheCards) {
    settings.dismissAfter.set(10);
    show({"a"});
    wait(5);
    hover(true);
    const double frozen = progress();
    wait(100);
    EXPECT_EQ(progress(), frozen);
    EXPECT_TRUE(controller().isVisible());
    hover(false);
    wait(4.9);
    EXPECT_TRUE(controller().isVisible());
    wait(0.2);
    EXPECT_FALSE(controller().isVisible());
}

TEST_F(CountdownTest, ACaptureAddedWhileHoveringStartsTheFullTimeWhenThePointerLeaves) {
    settings.dismissAfter.set(10);
    show({"a"});
    hover(true);
    show({"b"});
    wait(60);
    EXPECT_EQ(progress(), 1.0);
    hover(false);
    wait(9.9);
    EXPECT_TRUE(controller().isVisible());
    wait(0.2);
    EXPECT_FALSE(controller().isVisible());
}

TEST_F(CountdownTest, LeavingWithLittleTimeLeftGivesTwoAndAHalfSeconds) {
    settings.dismissAfter.set(10);
    show({"a"});
    wait(9.6);
    hover(true);
    hover(false);
    wait(0.04);
    EXPECT_NEAR(progress(), 0.25, 0.01);  // 2.5 of 10 seconds
    wait(2.4);
    EXPECT_TRUE(controller().isVisible());
    wait(0.1);
    EXPECT_FALSE(controller().isVisible());
}

TEST_F(CountdownTest, PausingWithOneSecondLeftSavesOneAndAHalf) {
    settings.dismissAfter.set(10);
    show({"a"});
    wait(9);
    hover(true);
    // The saved time can be seen only if the resume does not raise it. It is kept while no
    // countdown can run.
    settings.dismissAfter.set(0);
    hover(false);
    EXPECT_EQ(time.pending(), 0u);
    settings.dismissAfter.set(10);
    hover(false);
    wait(2.49);
    EXPECT_TRUE(controller().isVisible());
    wait(0.02);
    EXPECT_FALSE(controller().isVisible());
}

TEST_F(CountdownTest, ADragPausesItLikeHovering) {
    settings.dismissAfter.set(10);
    const auto shown = show({"a"});
    wait(5);
    actions.dragBegan();
    wait(60);
    EXPECT_TRUE(controller().isVisible());
    actions.dragEnded(false, {shown[0]->url()});
    wait(4.9);
    EXPECT_TRUE(controller().isVisible());
    wait(0.2);
    EXPECT_FALSE(controller().isVisible());
}

TEST_F(CountdownTest, ASecondPauseChangesNothing) {
    settings.dismissAfter.set(10);
    show({"a"});
    wait(4);
    hover(true);
    actions.dragBegan();
    actions.dragEnded(false, {});
    wait(5.9);
    EXPECT_TRUE(controller().isVisible());
    wait(0.2);
    EXPECT_FALSE(controller().isVisible());
}

TEST_F(CountdownTest, ExpiryKeepsThePinnedAndRunsNoFurtherTimer) {
    fakes::CapturedLog log(fakes::CapturedLog::DebugSwitch::on);
    settings.dismissAfter.set(10);
    const auto shown = show({"a", "b"});
    actions.togglePin(shown[1]);
    wait(10);
    EXPECT_THAT(shownNames(), ElementsAre("b.png"));
    EXPECT_EQ(progress(), 1.0);
    EXPECT_EQ(time.pending(), 1u) << "only the thumbnail of what has left is to shrink";
    EXPECT_TRUE(controller().isVisible());
    EXPECT_TRUE(log.contains("Vantle[dbg]: timer expired; keeping 1 pinned"));
}

TEST_F(CountdownTest, ExpiryWithEverythingPinnedRemovesNothing) {
    fakes::CapturedLog log(fakes::CapturedLog::DebugSwitch::on);
    settings.dismissAfter.set(10);
    const auto shown = show({"a", "b"});
    for (const auto& one : shown) actions.togglePin(one);
    wait(3600);
    EXPECT_THAT(shownNames(), ElementsAre("a.png", "b.png"));
    EXPECT_TRUE(log.contains("Vantle[dbg]: timer expired; keeping 2 pinned"));
    EXPECT_TRUE(log.contains("Vantle[dbg]: pin toggled; pinned=2"));
}

TEST_F(CountdownTest, APausedTimeIsResumedOnlyOnce) {
    settings.dismissAfter.set(10);
    const auto shown = show({"a", "b"});
    actions.togglePin(shown[0]);
    hover(true);
    hover(false);
    wait(10);
    ASSERT_THAT(shownNames(), ElementsAre("a.png"));
    hover(true);
    hover(false);
    EXPECT_EQ(time.pending(), 1u) << "what is pinned has no countdown";
    wait(10);
    EXPECT_EQ(time.pending(), 0u);
    EXPECT_EQ(progress(), 1.0);
}

TEST_F(CountdownTest, AClosedShareMenuPausesNothing) {
    settings.dismissAfter.set(10);
    const auto shown = show({"a"});
    actions.share(shown[0], Rect{});
    sharing.close();
    hover(true);
    hover(false);
    wait(10);
    EXPECT_FALSE(controller().isVisible());
}

TEST_F(CountdownTest, ADismissalForgetsThePausedTime) {
    settings.dismissAfter.set(10);
    show({"a"});
    hover(true);
    controller().dismiss();
    hover(false);
    wait(3);
    EXPECT_EQ(time.pending(), 0u);
}

}  // namespace
}  // namespace vantle
