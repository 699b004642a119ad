#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/CapturedLog.h"
#include "fakes/FakeMediaLoader.h"
#include "fakes/PanelFixture.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What happens to captures that are used, with both settings for this, with one of them, or with
/// none.
class CaptureUseTest : public fakes::PanelFixture {
protected:
    CaptureUseTest() {
        settings.dismissAfter.set(0);
        settings.removeAfterUse.set(false);
        settings.deleteAfterUse.set(false);
    }

    static CapturePointer drawn(const std::string& name) {
        const Url url = Url::file("/shots/" + name + ".png");
        const auto made = Capture::create(url, fakes::VirtualClock::epoch);
        fakes::FakeMediaLoader media;
        media.addImage(url, Size{100, 50}, {100, 50});
        made->loadThumbnail(media);
        return made;
    }

    void remove() { settings.removeAfterUse.set(true); }
    void removeAndTrash() {
        remove();
        settings.deleteAfterUse.set(true);
    }

    /// Expects that the card leaves after exactly this many seconds.
    void expectRemovalAfter(double seconds) {
        if (seconds > 0) {
            wait(seconds - 0.01);
            EXPECT_TRUE(controller().isVisible());
            wait(0.01);
        }
        EXPECT_FALSE(controller().isVisible());
    }
    /// Expects that so many files go to the Trash exactly five seconds from now.
    void expectTrashInFiveSeconds(std::size_t count) {
        wait(4.99);
        EXPECT_THAT(trash.trashed, IsEmpty());
        wait(0.01);
        EXPECT_EQ(trash.trashed.size(), count);
    }
    void expectNoTrashEver() {
        wait(60);
        EXPECT_THAT(trash.requests, IsEmpty());
    }
    void select(const std::vector<CapturePointer>& captures) {
        for (const auto& capture : captures) actions.toggleSelect(capture);
    }
};

TEST_F(CaptureUseTest, OpenOpensTheFileAndCountsAsUseAtOnce) {
    removeAndTrash();
    const auto shown = show({"a"});
    actions.open(shown[0]);
    EXPECT_THAT(opener.opened, ElementsAre(shown[0]->url()));
    expectRemovalAfter(0);
    expectNoTrashEver();
}

TEST_F(CaptureUseTest, RevealShowsTheFileAndCountsAsUseAtOnce) {
    removeAndTrash();
    const auto shown = show({"a"});
    actions.reveal(shown[0]);
    EXPECT_THAT(opener.revealed, ElementsAre(shown[0]->url()));
    expectRemovalAfter(0);
    expectNoTrashEver();
}

TEST_F(CaptureUseTest, AVanishedFileIsMarkedAndNotOpened) {
    const auto gone = [](const CapturePointer& capture) {
        return PanelState::OpeningFailure{capture->id()};
    };
    remove();
    const auto shown = show({"a", "b"});
    for (const auto& capture : shown) files.remove(capture->url());
    actions.open(shown[0]);
    EXPECT_EQ(state->openingFailure.value(), gone(shown[0]));
    wait(2);
    actions.reveal(shown[1]);
    EXPECT_EQ(state->openingFailure.value(), gone(shown[1]));
    wait(2.9);
    EXPECT_EQ(state->openingFailure.value(), gone(shown[1]))
        << "the end of the first is not its own";
    wait(0.2);
    EXPECT_EQ(state->openingFailure.value(), std::nullopt);
    EXPECT_THAT(opener.opened, IsEmpty());
    EXPECT_THAT(opener.revealed, IsEmpty());
    EXPECT_THAT(shownNames(), ElementsAre("a.png", "b.png"));
}

TEST_F(CaptureUseTest, CopyCountsAsUseAfterTheConfirmation) {
    remove();
    actions.copy(show({"a"})[0]);
    expectRemovalAfter(0.7);
    expectNoTrashEver();
}

TEST_F(CaptureUseTest, ACopiedFileGoesToTheTrashLater) {
    removeAndTrash();
    actions.copy(show({"a"})[0]);
    expectTrashInFiveSeconds(1);
}

TEST_F(CaptureUseTest, CopyingTheSelectionCountsForEachCapture) {
    remove();
    const auto shown = show({"a", "b", "c"});
    select({shown[2], shown[0]});
    actions.copySelected();
    wait(0.29);
    EXPECT_EQ(shownNames().size(), 3u);
    wait(0.01);
    EXPECT_THAT(shownNames(), ElementsAre("b.png"));
    expectNoTrashEver();
}

TEST_F(CaptureUseTest, FilesOfACopiedSelectionGoToTheTrashTogether) {
    settings.deleteAfterUse.set(true);
    const auto shown = show({"a", "b", "c"});
    select({shown[2], shown[0]});
    actions.copySelected();
    expectTrashInFiveSeconds(2);
    EXPECT_THAT(trash.requests, ElementsAre(ElementsAre(shown[0]->url(), shown[2]->url())));
}

TEST_F(CaptureUseTest, AnAutomaticCopyCountsFromTheAppearanceOfTheCapture) {
    removeAndTrash();
    const auto taken = capture("a");
    files.write(taken->url(), 1000, fakes::VirtualClock::epoch);
    controller().copy(taken);
    showAll({taken});
    expectRemovalAfter(0.7);
    wait(4.29);
    EXPECT_THAT(trash.trashed, IsEmpty());
    wait(0.01);
    EXPECT_THAT(trash.trashed, ElementsAre(taken->url()));
}

TEST_F(CaptureUseTest, AnAutomaticCopyShowsNoConfirmation) {
    const auto taken = capture("a");
    controller().copy(taken);
    showAll({taken});
    EXPECT_EQ(state->copiedID.value(), std::nullopt);
}

TEST_F(CaptureUseTest, ACompletedDragCountsAtOnce) {
    removeAndTrash();
    const auto shown = show({"a", "b", "c"});
    actions.dragBegan();
    actions.dragEnded(true, {shown[2]->url(), shown[0]->url()});
    EXPECT_THAT(shownNames(), ElementsAre("b.png"));
    expectTrashInFiveSeconds(2);
    EXPECT_THAT(trash.requests, ElementsAre(ElementsAre(shown[0]->url(), shown[2]->url())));
}

TEST_F(CaptureUseTest, ACancelledDragNeverRemovesOrTrashesAnything) {
    removeAndTrash();
    const auto shown = show({"a"});
    actions.dragBegan();
    actions.dragEnded(false, {shown[0]->url()});
    expectNoTrashEver();
    EXPECT_THAT(shownNames(), ElementsAre("a.png"));
}

TEST_F(CaptureUseTest, ACompletedDragOfFilesThatLeftThePanelDoesNothing) {
    removeAndTrash();
    const auto shown = show({"a", "b"});
    actions.close(shown[0]);
    actions.dragEnded(true, {shown[0]->url()});
    expectNoTrashEver();
    EXPECT_THAT(shownNames(), ElementsAre("b.png"));
}

TEST_F(CaptureUseTest, SharingCountsAsUseWhenAServiceIsChosen) {
    removeAndTrash();
    const auto shown = show({"a"});
    actions.share(shown[0], Rect{});
    EXPECT_THAT(sharing.items, ElementsAre(shown[0]->url()));
    EXPECT_TRUE(controller().isVisible());
    sharing.choose();
    expectRemovalAfter(0);
    expectNoTrashEver();
}

TEST_F(CaptureUseTest, AShareMenuClosedWithoutAChoiceRestartsTheCountdownAndRemovesNothing) {
    removeAndTrash();
    settings.dismissAfter.set(10);
    const auto shown = show({"a"});
    wait(9.5);
    actions.share(shown[0], Rect{});
    wait(60);
    EXPECT_TRUE(controller().isVisible());
    sharing.close();
    wait(2.49);
    EXPECT_THAT(shownNames(), ElementsAre("a.png"));
    EXPECT_TRUE(controller().isVisible());
    wait(0.01);
    EXPECT_FALSE(controller().isVisible());
    expectNoTrashEver();
}

TEST_F(CaptureUseTest, TheShareMenuClosesWithTheCard) {
    const auto shown = show({"a"});
    actions.share(shown[0], Rect{});
    ASSERT_TRUE(sharing.isOpen);
    controller().dismiss();
    EXPECT_FALSE(sharing.isOpen);
    actions.close(shown[0]);
    EXPECT_FALSE(sharing.isOpen);
}

TEST_F(CaptureUseTest, TheCountdownWaitsForTheMenuAlthoughThePointerLeavesTheCard) {
    settings.dismissAfter.set(10);
    const auto shown = show({"a"});
    hover(true);
    actions.share(shown[0], Rect{});
    hover(false);
    wait(60);
    EXPECT_TRUE(controller().isVisible());
    sharing.close();
    wait(10);
    EXPECT_FALSE(controller().isVisible());
}

TEST_F(CaptureUseTest, TheCountdownWaitsForTheDragAlthoughThePointerLeavesTheCard) {
    settings.dismissAfter.set(10);
    const auto shown = show({"a"});
    hover(true);
    actions.dragBegan();
    hover(false);
    wait(60);
    EXPECT_TRUE(controller().isVisible());
    // A screenshot that is taken meanwhile waits as well.
    show({"b"});
    wait(60);
    EXPECT_TRUE(controller().isVisible());
    actions.dragEnded(false, {shown[0]->url()});
    wait(9.99);
    EXPECT_TRUE(controller().isVisible());
    wait(0.01);
    EXPECT_FALSE(controller().isVisible());
}

TEST_F(CaptureUseTest, ADragThatBeginsWhileAnotherAwaitsItsAnswerKeepsTheCountdownWaiting) {
    settings.dismissAfter.set(10);
    const auto shown = show({"a"});
    actions.dragBegan();
    actions.dragBegan();
    actions.dragEnded(false, {shown[0]->url()});
    wait(60);
    EXPECT_TRUE(controller().isVisible());
    actions.dragEnded(false, {shown[0]->url()});
    wait(10);
    EXPECT_FALSE(controller().isVisible());
}

TEST_F(CaptureUseTest, TheShareMenuPointsAtTheButtonOnTheScreen) {
    const auto shown = show({"a"});
    actions.share(shown[0], Rect{{700, 280}, {28, 28}});
    const Rect frame = panel.frames.back();
    EXPECT_EQ(sharing.anchor, (Rect{{frame.origin.x + 700, frame.origin.y + 330 - 308}, {28, 28}}));
}

TEST_F(CaptureUseTest, ClosingDoesNotCountAsUse) {
    removeAndTrash();
    const auto shown = show({"a", "b", "c", "d"});
    actions.close(shown[0]);
    select({shown[1]});
    actions.removeSelected();
    EXPECT_THAT(shownNames(), ElementsAre("c.png", "d.png"));
    actions.closeAll();
    expectNoTrashEver();
}

TEST_F(CaptureUseTest, TrashActsAtOnceWithAnySettings) {
    const auto shown = show({"a", "b", "c"});
    actions.trash(shown[0]);
    EXPECT_THAT(shownNames(), ElementsAre("b.png", "c.png"));
    select({shown[1], shown[2]});
    actions.trashSelected();
    EXPECT_THAT(shownNames(), IsEmpty());
    wait(60);
    EXPECT_FALSE(controller().isVisible());
    EXPECT_THAT(trash.requests, ElementsAre(ElementsAre(shown[0]->url()),
                                            ElementsAre(shown[1]->url(), shown[2]->url())));
}

TEST_F(CaptureUseTest, UsedCapturesStayWithoutTheSettings) {
    const auto shown = show({"a", "b"});
    actions.open(shown[0]);
    actions.reveal(shown[0]);
    actions.copy(shown[0]);
    actions.share(shown[0], Rect{});
    sharing.choose();
    actions.dragBegan();
    actions.dragEnded(true, {shown[0]->url()});
    select(shown);
    actions.copySelected();
    expectNoTrashEver();
    EXPECT_THAT(shownNames(), ElementsAre("a.png", "b.png"));
}

TEST_F(CaptureUseTest, ACopiedFileGoesToTheTrashAlthoughThePanelWasDismissed) {
    settings.deleteAfterUse.set(true);
    const auto shown = show({"a"});
    actions.copy(shown[0]);
    wait(1);
    actions.closeAll();
    wait(3.99);
    EXPECT_THAT(trash.trashed, IsEmpty());
    wait(0.01);
    EXPECT_THAT(trash.trashed, ElementsAre(shown[0]->url()));
}

TEST_F(CaptureUseTest, ASingleScreenshotIsCopiedAsPictureAndFile) {
    const auto taken = drawn("a");
    showAll({taken});
    actions.copy(taken);
    EXPECT_THAT(pasteboard.contents(), ElementsAre("image /shots/a.png", "file /shots/a.png"));
}

TEST_F(CaptureUseTest, ASelectionOfOneScreenshotIsCopiedAsPictureAndFile) {
    const auto taken = drawn("a");
    showAll({taken});
    select({taken});
    actions.copySelected();
    EXPECT_THAT(pasteboard.contents(), ElementsAre("image /shots/a.png", "file /shots/a.png"));
    EXPECT_EQ(state->copiedID.value(), std::nullopt);
}

TEST_F(CaptureUseTest, AScreenshotThatCouldNotBeDrawnIsCopiedAsFileOnly) {
    actions.copy(show({"a"})[0]);
    EXPECT_THAT(pasteboard.contents(), ElementsAre("file /shots/a.png"));
}

TEST_F(CaptureUseTest, ARecordingIsCopiedAsFileOnly) {
    const auto taken = recording("a");
    showAll({taken});
    actions.copy(taken);
    EXPECT_THAT(pasteboard.contents(), ElementsAre("file /shots/a.mov"));
}

TEST_F(CaptureUseTest, TwoScreenshotsAreCopiedAsFilesOnly) {
    select(show({"a", "b"}));
    actions.copySelected();
    EXPECT_THAT(pasteboard.contents(), ElementsAre("file /shots/a.png", "file /shots/b.png"));
}

TEST_F(CaptureUseTest, APictureThatCannotBeLoadedIsLeftOut) {
    const auto shown = show({"a"});
    pasteboard.damaged.insert("/shots/a.png");
    actions.copy(shown[0]);
    EXPECT_THAT(pasteboard.contents(), ElementsAre("file /shots/a.png"));
}

TEST_F(CaptureUseTest, TheConfirmationOfACopyLastsOnePointTwoSeconds) {
    const auto shown = show({"a"});
    actions.copy(shown[0]);
    wait(1.19);
    EXPECT_EQ(state->copiedID.value(), shown[0]->id());
    wait(0.01);
    EXPECT_EQ(state->copiedID.value(), std::nullopt);
}

TEST_F(CaptureUseTest, TheEndOfAConfirmationKeepsThatOfALaterCopy) {
    const auto shown = show({"a", "b"});
    actions.copy(shown[0]);
    wait(1);
    actions.copy(shown[1]);
    wait(0.2);
    EXPECT_EQ(state->copiedID.value(), shown[1]->id());
    wait(1);
    EXPECT_EQ(state->copiedID.value(), std::nullopt);
}

TEST_F(CaptureUseTest, AFailureOfTheTrashIsLoggedAndTheCardLeaves) {
    const fakes::CapturedLog log;
    const auto shown = show({"a"});
    files.remove(shown[0]->url());
    actions.trash(shown[0]);
    EXPECT_THAT(shownNames(), IsEmpty());
    wait(6);
    EXPECT_FALSE(controller().isVisible());
    EXPECT_TRUE(log.contains("Trash failed: /shots/a.png: No such file or directory"));
}

TEST_F(CaptureUseTest, AFailureOfTheTrashAfterUseIsLogged) {
    const fakes::CapturedLog log;
    settings.deleteAfterUse.set(true);
    const auto shown = show({"a"});
    actions.copy(shown[0]);
    files.remove(shown[0]->url());
    wait(5);
    EXPECT_TRUE(log.contains("Trash after use failed: /shots/a.png: No such file or directory"));
    EXPECT_THAT(shownNames(), ElementsAre("a.png"));
}

TEST_F(CaptureUseTest, DelayedStepsDoNothingAfterTheControllerHasGone) {
    removeAndTrash();
    const auto shown = show({"a"});
    actions.copy(shown[0]);
    actions.share(shown[0], Rect{});
    releaseController();
    sharing.choose();
    wait(10);
    EXPECT_THAT(trash.requests, IsEmpty());
}

}  // namespace
}  // namespace vantle
