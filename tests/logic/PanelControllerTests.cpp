#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/CapturedLog.h"
#include "fakes/PanelFixture.h"

namespace vantle {
namespace {

using fakes::CapturedLog;
using testing::ElementsAre;
using testing::IsEmpty;

class PanelControllerTest : public fakes::PanelFixture {};

TEST_F(PanelControllerTest, TheWindowIsMadeOnTheFirstShowOnly) {
    controller();
    EXPECT_EQ(panelsMade, 0);
    show({"a", "b"});
    controller().dismiss();
    wait(1);
    show({"c"});
    EXPECT_EQ(panelsMade, 1);
}

TEST_F(PanelControllerTest, TheCardSeesThePanelOnTheScreenBeforeItAppears) {
    controller().show(capture("a"));
    EXPECT_TRUE(panel.isOnScreen);
    EXPECT_FALSE(controller().isVisible());
    time.settle();
    EXPECT_TRUE(controller().isVisible());
}

TEST_F(PanelControllerTest, EachNewCaptureOrdersThePanelToTheFront) {
    show({"a", "b", "c"});
    EXPECT_EQ(panel.timesOrderedFront, 3);
    EXPECT_THAT(shownNames(), ElementsAre("a.png", "b.png", "c.png"));
}

TEST_F(PanelControllerTest, AnEqualCaptureMovesToTheEnd) {
    show({"a", "b", "a"});
    EXPECT_THAT(shownNames(), ElementsAre("b.png", "a.png"));
}

TEST_F(PanelControllerTest, AnEqualCaptureKeepsTheSelectionAndThePin) {
    const auto first = show({"a", "b"}).front();
    actions.toggleSelect(first);
    actions.togglePin(first);
    const auto again = show({"a"}).front();
    ASSERT_NE(again->id(), first->id());
    EXPECT_EQ(state->selected.value(), std::set{again->id()});
    EXPECT_EQ(state->pinned.value(), std::set{again->id()});
    show({"b"});
    EXPECT_EQ(state->selected.value(), std::set{again->id()}) << "the other one was not selected";
}

TEST_F(PanelControllerTest, TheSameCaptureShownAgainStaysSelected) {
    const auto first = show({"a", "b"}).front();
    actions.toggleSelect(first);
    controller().show(first);
    EXPECT_EQ(state->selected.value(), std::set{first->id()});
}

TEST_F(PanelControllerTest, The41stCaptureDropsTheOldest) {
    std::vector<std::string> names;
    for (int i = 0; i < 41; ++i) names.push_back(std::to_string(i));
    show(names);
    EXPECT_EQ(shownNames().size(), 40u);
    EXPECT_EQ(shownNames().front(), "1.png");
    EXPECT_EQ(shownNames().back(), "40.png");
}

TEST_F(PanelControllerTest, ANewCaptureClearsTheCopyConfirmation) {
    const auto shown = show({"a"});
    state->copiedID.set(shown[0]->id());
    show({"b"});
    EXPECT_EQ(state->copiedID.value(), std::nullopt);
}

TEST_F(PanelControllerTest, ThePanelIsInTheCornerOfTheSettings) {
    screens.screens = {{{{0, 0}, {1920, 1080}}, {{0, 40}, {1920, 1010}}}};
    show({"a"});
    EXPECT_EQ(panel.frames.back(), (Rect{{1120, 40}, {800, 330}}));
    settings.corner.set(PanelCorner::topLeft);
    EXPECT_EQ(panel.frames.size(), 1u);  // not before the next add
    show({"b"});
    EXPECT_EQ(panel.frames.back(), (Rect{{0, 720}, {800, 330}}));
    EXPECT_EQ(state->corner, PanelCorner::topLeft);
}

TEST_F(PanelControllerTest, AVisibleCardMovesToTheChosenCorner) {
    show({"a"});
    settings.corner.set(PanelCorner::topLeft);
    time.settle();
    EXPECT_EQ(panel.frames.back(),
              CardLayout::windowFrame(PanelCorner::topLeft, screens.all().front().visibleFrame));
    EXPECT_EQ(state->corner, PanelCorner::topLeft);
    EXPECT_EQ(panel.timesOrderedFront, 2) << "so that it reads the corner";
    controller().dismiss();
    const auto moves = panel.frames.size();
    settings.corner.set(PanelCorner::topRight);
    time.settle();
    EXPECT_EQ(panel.frames.size(), moves) << "one that leaves does so where it is";
}

TEST_F(PanelControllerTest, ThePanelFollowsThePointerToASecondDisplay) {
    screens.screens = {{{{0, 0}, {1920, 1080}}, {{0, 0}, {1920, 1080}}},
                       {{{1920, 200}, {1280, 800}}, {{1920, 200}, {1280, 770}}}};
    screens.pointer = {2000, 500};
    show({"a"});
    EXPECT_EQ(panel.frames.back(), (Rect{{2400, 200}, {800, 330}}));
}

TEST_F(PanelControllerTest, APointerOnNoDisplayMeansTheMainOne) {
    const Screen first{{{0, 0}, {1000, 800}}, {{0, 0}, {1000, 800}}};
    const Screen second{{{1000, 0}, {1000, 800}}, {{1000, 0}, {1000, 800}}};
    screens.screens = {first, second};
    screens.pointer = {-5, -5};
    screens.mainScreen = second;
    show({"a"});
    EXPECT_EQ(panel.frames.back().origin, (Point{1200, 0}));
    screens.mainScreen.reset();
    show({"b"});
    EXPECT_EQ(panel.frames.back().origin, (Point{200, 0}));
}

TEST_F(PanelControllerTest, ThePanelHasAFixedFrameWithoutScreens) {
    screens.screens.clear();
    screens.mainScreen.reset();
    show({"a"});
    EXPECT_EQ(panel.frames.back(), (Rect{{640, 0}, {800, 330}}));
}

TEST_F(PanelControllerTest, EachCornerHasItsFrameWithoutScreens) {
    screens.screens.clear();
    screens.mainScreen.reset();
    for (const auto& [corner, place] : {std::pair{PanelCorner::bottomRight, Point{640, 0}},
                                        {PanelCorner::bottomLeft, {0, 0}},
                                        {PanelCorner::topRight, {640, 570}},
                                        {PanelCorner::topLeft, {0, 570}}}) {
        settings.corner.set(corner);
        show({"a"});
        EXPECT_EQ(panel.frames.back(), (Rect{place, {800, 330}}));
    }
}

TEST_F(PanelControllerTest, APointerOnADesktopsPanelIsOnThatDisplay) {
    screens.screens = {{{{0, 0}, {1920, 1080}}, {{0, 0}, {1920, 1080}}},
                       {{{1920, 0}, {1280, 800}}, {{1920, 40}, {1280, 760}}}};
    screens.pointer = {2000, 20};
    show({"a"});
    EXPECT_EQ(panel.frames.back(), (Rect{{2400, 40}, {800, 330}}));
}

TEST_F(PanelControllerTest, APointerOnNoDisplayUsesTheFreePartOfAnother) {
    const Screen first{{{0, 0}, {1000, 800}}, {{0, 40}, {960, 700}}};
    screens.screens = {first};
    screens.pointer = {-5, -5};
    screens.mainScreen.reset();
    show({"a"});
    EXPECT_EQ(panel.frames.back(), (Rect{{160, 40}, {800, 330}}));
    screens.mainScreen = Screen{{{1000, 0}, {1000, 800}}, {{1000, 30}, {1000, 770}}};
    show({"b"});
    EXPECT_EQ(panel.frames.back(), (Rect{{1200, 30}, {800, 330}}));
}

TEST_F(PanelControllerTest, ANewCaptureLeavesTheMarksOfTheOthers) {
    const auto shown = show({"a", "b"});
    actions.togglePin(shown[0]);
    actions.toggleSelect(shown[1]);
    show({"c"});
    EXPECT_EQ(state->pinned.value(), std::set{shown[0]->id()});
    EXPECT_EQ(state->selected.value(), std::set{shown[1]->id()});
}

TEST_F(PanelControllerTest, ADismissalClearsTheStateAtOnceAndTheListHalfASecondLater) {
    const auto shown = show({"a", "b"});
    actions.toggleSelect(shown[0]);
    actions.togglePin(shown[1]);
    state->marquee.set(Rect{{1, 2}, {3, 4}});
    hover(true);
    controller().dismiss();
    EXPECT_FALSE(controller().isVisible());
    EXPECT_FALSE(state->hovering.value());
    EXPECT_THAT(state->selected.value(), IsEmpty());
    EXPECT_THAT(state->pinned.value(), IsEmpty());
    EXPECT_EQ(state->marquee.value(), std::nullopt);
    wait(0.49);
    EXPECT_EQ(shownNames().size(), 2u);
    EXPECT_TRUE(panel.isOnScreen);
    wait(0.01);
    EXPECT_THAT(shownNames(), IsEmpty());
    EXPECT_FALSE(panel.isOnScreen);
}

TEST_F(PanelControllerTest, AShowDuringADismissalKeepsTheOldCaptures) {
    show({"a", "b"});
    controller().dismiss();
    wait(0.3);
    show({"c"});
    wait(5);
    EXPECT_THAT(shownNames(), ElementsAre("a.png", "b.png", "c.png"));
    EXPECT_TRUE(controller().isVisible());
    EXPECT_TRUE(panel.isOnScreen);
}

TEST_F(PanelControllerTest, AShowAfterTwoDismissalsKeepsTheOldCaptures) {
    show({"a", "b"});
    controller().dismiss();
    wait(0.1);
    controller().dismiss();
    wait(0.2);
    show({"c"});
    wait(5);
    EXPECT_THAT(shownNames(), ElementsAre("a.png", "b.png", "c.png"));
    EXPECT_TRUE(panel.isOnScreen);
}

TEST_F(PanelControllerTest, RemovingTheLastCaptureDismisses) {
    const auto shown = show({"a", "b"});
    controller().remove(shown[0]);
    EXPECT_TRUE(controller().isVisible());
    controller().remove(shown[1]);
    EXPECT_FALSE(controller().isVisible());
    wait(0.5);
    EXPECT_FALSE(panel.isOnScreen);
}

TEST_F(PanelControllerTest, RemovalAlsoRemovesTheIdentifiersInOneAnimation) {
    const auto shown = show({"a", "b", "c"});
    for (const auto& one : shown) {
        actions.toggleSelect(one);
        actions.togglePin(one);
    }
    std::optional<Animation> animation;
    const auto subscription =
        state->captures.observeChanges([&](const auto&) { animation = state->animation(); });
    controller().removeMany({shown[0], shown[2]});
    EXPECT_THAT(shownNames(), ElementsAre("b.png"));
    EXPECT_THAT(state->selected.value(), ElementsAre(shown[1]->id()));
    EXPECT_THAT(state->pinned.value(), ElementsAre(shown[1]->id()));
    EXPECT_EQ(animation, (Animation{.response = 0.45, .dampingFraction = 0.82}));
}

TEST_F(PanelControllerTest, RemovingNothingDoesNothing) {
    CapturedLog log(CapturedLog::DebugSwitch::on);
    controller().removeMany({});
    EXPECT_EQ(time.pending(), 0u);
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(PanelControllerTest, RemovalDoesNotMoveThePanel) {
    const auto shown = show({"a", "b"});
    const auto frames = panel.frames.size();
    controller().remove(shown[0]);
    EXPECT_EQ(panel.frames.size(), frames);
}

TEST_F(PanelControllerTest, LogsThePlacesOfTheThumbnailsWhenTheyAreFinal) {
    CapturedLog log(CapturedLog::DebugSwitch::on);
    show({"a"});
    time.advance(Seconds(1.19));
    EXPECT_FALSE(log.contains("Vantle[dbg]: no thumbnails"));
    time.advance(Seconds(0.02));
    EXPECT_TRUE(log.contains("Vantle[dbg]: no thumbnails"));
}

TEST_F(PanelControllerTest, LogsItsActionsWhenDebugging) {
    CapturedLog log(CapturedLog::DebugSwitch::on);
    panel.glassFrame = "{{1, 2}, {3, 4}}";
    const auto shown = show({"a", "b"});
    controller().remove(shown[0]);
    panel.glassFrame.reset();
    show({"c"});
    controller().remove(shown[1]);
    controller().dismiss();
    for (const char* line :
         {"remove 1 capture(s); before=2", "glassFrame(topleft) = {{1, 2}, {3, 4}}",
          "glassFrame(topleft) = none", "dismiss; visible=true count=1"})
        EXPECT_TRUE(log.contains(std::string("Vantle[dbg]: ") + line)) << line;
}

TEST_F(PanelControllerTest, ASnapshotIsWrittenAfterEachNewCaptureOnRequest) {
    environment["VANTLE_SNAPSHOT"] = "/tmp/card.png";
    show({"a"});
    wait(1.1);
    EXPECT_THAT(panel.snapshots, IsEmpty());
    wait(0.1);
    EXPECT_THAT(panel.snapshots, ElementsAre("/tmp/card.png"));
    show({"b"});
    wait(1.2);
    EXPECT_EQ(panel.snapshots.size(), 2u);
}

TEST_F(PanelControllerTest, AFailedSnapshotIsLogged) {
    CapturedLog log;
    environment["VANTLE_SNAPSHOT"] = "/none/card.png";
    panel.snapshotOutcome = Failure{.code = 2, .message = "No such file or directory"};
    show({"a"});
    wait(1.2);
    EXPECT_THAT(log.lines(), ElementsAre("Vantle: snapshot failed No such file or directory"));
}

TEST_F(PanelControllerTest, NothingRunsAfterItHasGone) {
    settings.dismissAfter.set(5);
    show({"a"});
    controller().dismiss();
    releaseController();
    wait(10);
    EXPECT_EQ(time.pending(), 0u);
    EXPECT_TRUE(panel.isOnScreen);  // the controller that would have hidden it is gone
}

}  // namespace
}  // namespace vantle
