#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "AppFixture.h"
#include "fakes/FakeMediaLoader.h"
#include "fakes/PanelFixture.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What left the card without having been used comes back.
class BringBackTest : public fakes::PanelFixture {
protected:
    BringBackTest() { settings.dismissAfter.set(0); }

    static CapturePointer takenAt(const std::string& name, double seconds) {
        const auto at = std::chrono::duration_cast<Date::duration>(Seconds(seconds));
        return Capture::create(Url::file("/shots/" + name + ".png"),
                               fakes::VirtualClock::epoch + at);
    }
    void bringBack() {
        controller().bringBack();
        time.settle();
    }
};

TEST_F(BringBackTest, AClosedCaptureComesBackToItsPlace) {
    const auto shown = show({"a", "b", "c"});
    actions.close(shown[1]);
    actions.undo();
    EXPECT_THAT(shownNames(), ElementsAre("a.png", "b.png", "c.png"));
}

TEST_F(BringBackTest, EachUndoTakesBackOneStep) {
    const auto shown = show({"a", "b", "c", "d"});
    actions.close(shown[0]);
    actions.close(shown[2]);
    actions.undo();
    EXPECT_THAT(shownNames(), ElementsAre("b.png", "c.png", "d.png"));
    actions.undo();
    EXPECT_THAT(shownNames(), ElementsAre("a.png", "b.png", "c.png", "d.png"));
    actions.undo();
    EXPECT_THAT(shownNames(), ElementsAre("a.png", "b.png", "c.png", "d.png"));
}

TEST_F(BringBackTest, EverythingComesBackInOrder) {
    const auto shown = show({"a", "b", "c", "d"});
    actions.close(shown[3]);
    actions.close(shown[0]);
    actions.closeAll();
    wait(60);
    ASSERT_THAT(shownNames(), IsEmpty());
    bringBack();
    EXPECT_THAT(shownNames(), ElementsAre("a.png", "b.png", "c.png", "d.png"));
    EXPECT_TRUE(controller().isVisible());
    EXPECT_TRUE(panel.isOnScreen);
    EXPECT_FALSE(controller().canBringBack());
}

TEST_F(BringBackTest, ADismissedSelectionComesBackTogether) {
    const auto shown = show({"a", "b", "c"});
    for (const int i : {0, 2}) actions.toggleSelect(shown[static_cast<std::size_t>(i)]);
    actions.removeSelected();
    actions.undo();
    EXPECT_THAT(shownNames(), ElementsAre("a.png", "b.png", "c.png"));
    EXPECT_THAT(state->selected.value(), IsEmpty());
}

TEST_F(BringBackTest, WhatTheCountdownTookComesBackWithAWholeCountdown) {
    settings.dismissAfter.set(5);
    show({"a", "b"});
    wait(5);
    ASSERT_FALSE(controller().isVisible());
    bringBack();
    EXPECT_THAT(shownNames(), ElementsAre("a.png", "b.png"));
    wait(4.9);
    EXPECT_TRUE(controller().isVisible());
    wait(0.1);
    EXPECT_FALSE(controller().isVisible());
}

TEST_F(BringBackTest, WhatTheCountdownTookComesBackBesideThePinned) {
    settings.dismissAfter.set(5);
    const auto shown = show({"a", "b", "c"});
    actions.togglePin(shown[1]);
    wait(5);
    ASSERT_THAT(shownNames(), ElementsAre("b.png"));
    actions.undo();
    EXPECT_THAT(shownNames(), ElementsAre("a.png", "b.png", "c.png"));
}

TEST_F(BringBackTest, APinnedCaptureIsPinnedAgain) {
    const auto shown = show({"a", "b"});
    actions.togglePin(shown[0]);
    actions.closeAll();
    wait(60);
    bringBack();
    const auto& captures = controller().state().captures.value();
    ASSERT_EQ(captures.size(), 2u);
    EXPECT_THAT(state->pinned.value(), ElementsAre(captures[0]->id()));
}

TEST_F(BringBackTest, UsedCapturesDoNotComeBack) {
    settings.removeAfterUse.set(true);
    const auto shown = show({"a", "b"});
    actions.open(shown[0]);
    ASSERT_THAT(shownNames(), ElementsAre("b.png"));
    EXPECT_FALSE(controller().canBringBack());
    actions.undo();
    EXPECT_THAT(shownNames(), ElementsAre("b.png"));
}

TEST_F(BringBackTest, IsPossibleForTenMinutes) {
    show({"a"});
    actions.closeAll();
    wait(599.9);
    EXPECT_TRUE(controller().canBringBack());
    wait(0.1);
    EXPECT_FALSE(controller().canBringBack());
    bringBack();
    EXPECT_THAT(shownNames(), IsEmpty());
}

TEST_F(BringBackTest, EndsWhenSomethingNewerIsCaptured) {
    showAll({takenAt("a", 1)});
    actions.closeAll();
    wait(5);
    showAll({takenAt("b", 2)});
    EXPECT_FALSE(controller().canBringBack());
}

TEST_F(BringBackTest, GoesOnWhenAnOldCaptureIsShownAgain) {
    const auto first = takenAt("a", 1);
    showAll({first, takenAt("b", 2)});
    actions.closeAll();
    wait(5);
    showAll({takenAt("a", 1)});
    EXPECT_TRUE(controller().canBringBack());
    bringBack();
    EXPECT_THAT(shownNames(), ElementsAre("a.png", "b.png"));
}

TEST_F(BringBackTest, ACaptureThatIsBackAlreadyDoesNotComeTwice) {
    showAll({takenAt("a", 1)});
    actions.closeAll();
    wait(5);
    showAll({takenAt("a", 1)});
    EXPECT_FALSE(controller().canBringBack());
    bringBack();
    EXPECT_THAT(shownNames(), ElementsAre("a.png"));
}

TEST_F(BringBackTest, WorksWhileTheCardIsLeaving) {
    show({"a", "b"});
    actions.closeAll();
    wait(0.2);
    bringBack();
    wait(60);
    EXPECT_THAT(shownNames(), ElementsAre("a.png", "b.png"));
    EXPECT_TRUE(panel.isOnScreen);
}

TEST_F(BringBackTest, ASecondDismissalOfTheSameCardIsNoSecondStep) {
    show({"a"});
    actions.closeAll();
    controller().dismiss();
    wait(60);
    actions.undo();
    time.settle();
    EXPECT_FALSE(controller().canBringBack());
}

TEST_F(BringBackTest, AMomentLaterNothingIsLoadedAgain) {
    const auto shown = show({"a", "b"});
    actions.close(shown[0]);
    wait(9.9);
    actions.undo();
    EXPECT_EQ(reloads, 0);
    EXPECT_EQ(controller().state().captures.value()[0], shown[0]);
}

TEST_F(BringBackTest, LaterTheThumbnailsAreLoadedAgainToSaveMemory) {
    const auto shown = show({"a", "b"});
    actions.close(shown[0]);
    wait(10);
    actions.undo();
    time.settle();
    EXPECT_EQ(reloads, 1);
    EXPECT_THAT(shownNames(), ElementsAre("a.png", "b.png"));
}

TEST_F(BringBackTest, ThumbnailsAreSmallOnceTheCardIsReleased) {
    show({"a"});
    actions.closeAll();
    wait(2.5);
    bringBack();
    EXPECT_EQ(reloads, 1);
}

TEST_F(BringBackTest, AFullCardKeepsTheNewest) {
    std::vector<std::string> names;
    for (int i = 0; i < CardLayout::maxCaptures; ++i) names.push_back(std::to_string(i));
    const auto shown = show(names);
    actions.close(shown[39]);
    showAll({capture("more")});
    actions.undo();
    const auto all = shownNames();
    EXPECT_EQ(all.size(), 40u);
    EXPECT_EQ(all.front(), "1.png");
    EXPECT_EQ(all[38], "39.png");
    EXPECT_EQ(all[39], "more.png");
}

/// The same in the whole program.
class BringBackInAppTest : public AppFixture {
protected:
    std::vector<std::string> shownNames() const {
        std::vector<std::string> names;
        for (const auto& capture : delegate->panel().state().captures.value())
            names.push_back(capture->fileName());
        return names;
    }
    std::string ask(const std::string& action) {
        const auto answer = delegate->perform({action, {}});
        time.settle();
        return answer ? answer.value() : "failed: " + answer.failure().message;
    }
};

TEST_F(BringBackInAppTest, TheMenuOffersItWhileThereIsSomething) {
    launch();
    save("a.png");
    save("b.png");
    EXPECT_THAT(statusItem->open(), testing::Not(testing::Contains("Bring back")));
    delegate->panel().dismiss();
    time.advance(Seconds(60));
    EXPECT_THAT(statusItem->open(),
                ElementsAre("Recent Captures", "b.png", "a.png", "Bring back", "-",
                            "Open Screenshots Folder", "-", "Pause Vantle", "Settings…",
                            "Check for Updates…", "-", "Quit Vantle"));
    EXPECT_TRUE(statusItem->choose("Bring back"));
    time.settle();
    EXPECT_THAT(shownNames(), ElementsAre("a.png", "b.png"));
}

TEST_F(BringBackInAppTest, TheCommandRestoresWithWholeThumbnails) {
    launch();
    media->addImage(folder.appending("a.png"), Size{2560, 1440}, {2560, 1440});
    save("a.png");
    EXPECT_EQ(ask("restore"), "failed: nothing has left the card lately");
    EXPECT_EQ(ask("dismiss"), "");
    time.advance(Seconds(60));
    EXPECT_EQ(ask("restore"), "");
    ASSERT_THAT(shownNames(), ElementsAre("a.png"));
    EXPECT_EQ(delegate->panel().state().captures.value()[0]->thumbnail()->pixelsWide, 800);
}

TEST_F(BringBackInAppTest, ACaptureWhoseFileIsGoneComesBackWithASmallThumbnail) {
    launch();
    media->addImage(folder.appending("a.png"), Size{2560, 1440}, {2560, 1440});
    save("a.png");
    EXPECT_EQ(ask("dismiss"), "");
    time.advance(Seconds(60));
    media->remove(folder.appending("a.png"));
    EXPECT_EQ(ask("restore"), "");
    ASSERT_THAT(shownNames(), ElementsAre("a.png"));
    EXPECT_EQ(delegate->panel().state().captures.value()[0]->thumbnail()->pixelsWide, 108);
}

}  // namespace
}  // namespace vantle
