#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/CapturedLog.h"
#include "fakes/PanelFixture.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A capture that was moved to the Trash leaves a notice, with which that can be undone.
class TrashedCapturesTest : public fakes::PanelFixture {
protected:
    TrashedCapturesTest() { settings.dismissAfter.set(0); }

    std::optional<TrashNotice> notice(const CapturePointer& capture) const {
        const auto& notices = state->trashNotices.value();
        const auto found = notices.find(capture->id());
        return found == notices.end() ? std::nullopt : std::optional(found->second);
    }
    bool exists(const CapturePointer& capture) {
        return files.existence(capture->url()) != FileManager::Existence::none;
    }
    void undo(const CapturePointer& capture) {
        actions.undoTrash(capture->id());
        time.settle();
    }
    void trashAndSettle(const CapturePointer& capture) {
        actions.trash(capture);
        time.settle();
    }
};

TEST_F(TrashedCapturesTest, TheNoticeStandsForSixSeconds) {
    const auto shown = show({"a", "b"});
    actions.trash(shown[0]);
    EXPECT_THAT(shownNames(), ElementsAre("b.png"));
    wait(5.9);
    EXPECT_EQ(notice(shown[0]), TrashNotice::moved);
    wait(0.1);
    EXPECT_EQ(notice(shown[0]), std::nullopt);
    EXPECT_TRUE(controller().isVisible());
}

TEST_F(TrashedCapturesTest, TheCardOfTheLastCaptureLeavesWithItsNotice) {
    const auto shown = show({"a"});
    actions.trash(shown[0]);
    wait(5.9);
    EXPECT_TRUE(controller().isVisible());
    wait(0.1);
    EXPECT_FALSE(controller().isVisible());
}

TEST_F(TrashedCapturesTest, UndoBringsFileAndTileBackToTheirPlaces) {
    const auto shown = show({"a", "b", "c"});
    trashAndSettle(shown[1]);
    EXPECT_FALSE(exists(shown[1]));
    undo(shown[1]);
    EXPECT_TRUE(exists(shown[1]));
    EXPECT_THAT(trash.trashed, IsEmpty());
    EXPECT_THAT(shownNames(), ElementsAre("a.png", "b.png", "c.png"));
    EXPECT_EQ(notice(shown[1]), std::nullopt);
    wait(60);
    EXPECT_THAT(shownNames(), ElementsAre("a.png", "b.png", "c.png"));
}

TEST_F(TrashedCapturesTest, UndoOnTheOnlyTileKeepsTheCard) {
    const auto shown = show({"a"});
    trashAndSettle(shown[0]);
    wait(5);
    undo(shown[0]);
    wait(60);
    EXPECT_TRUE(controller().isVisible());
    EXPECT_THAT(shownNames(), ElementsAre("a.png"));
}

TEST_F(TrashedCapturesTest, ASelectionComesBackTogether) {
    const auto shown = show({"a", "b", "c"});
    actions.toggleSelect(shown[0]);
    actions.toggleSelect(shown[2]);
    actions.trashSelected();
    time.settle();
    undo(shown[2]);
    EXPECT_THAT(shownNames(), ElementsAre("a.png", "b.png", "c.png"));
    EXPECT_TRUE(exists(shown[0]));
    EXPECT_TRUE(exists(shown[2]));
}

TEST_F(TrashedCapturesTest, UndoBeforeTheTrashHasAnsweredWaits) {
    const auto shown = show({"a", "b"});
    actions.trash(shown[0]);
    actions.undoTrash(shown[0]->id());
    EXPECT_THAT(shownNames(), ElementsAre("b.png"));
    time.settle();
    EXPECT_THAT(shownNames(), ElementsAre("a.png", "b.png"));
    EXPECT_TRUE(exists(shown[0]));
}

TEST_F(TrashedCapturesTest, ASecondUndoDoesNothing) {
    const fakes::CapturedLog log;
    const auto shown = show({"a"});
    trashAndSettle(shown[0]);
    actions.undoTrash(shown[0]->id());
    undo(shown[0]);
    EXPECT_THAT(shownNames(), ElementsAre("a.png"));
    EXPECT_FALSE(log.contains("Undo of the Trash failed"));
}

TEST_F(TrashedCapturesTest, UndoNeverOverwritesAFile) {
    const fakes::CapturedLog log;
    const auto shown = show({"a", "b"});
    trashAndSettle(shown[0]);
    files.write(shown[0]->url(), 77, fakes::VirtualClock::epoch);
    wait(5);
    undo(shown[0]);
    EXPECT_EQ(notice(shown[0]), TrashNotice::notPutBack);
    EXPECT_EQ(trash.trashed.size(), 1u);
    EXPECT_TRUE(log.contains("Undo of the Trash failed: /shots/a.png: File exists"));
    wait(5.9);
    EXPECT_EQ(notice(shown[0]), TrashNotice::notPutBack);
    wait(0.1);
    EXPECT_EQ(notice(shown[0]), std::nullopt);
}

TEST_F(TrashedCapturesTest, WhatCanBePutBackOfASelectionIsPutBack) {
    const auto shown = show({"a", "b", "c"});
    actions.toggleSelect(shown[0]);
    actions.toggleSelect(shown[1]);
    actions.trashSelected();
    time.settle();
    files.write(shown[0]->url(), 77, fakes::VirtualClock::epoch);
    undo(shown[0]);
    EXPECT_THAT(shownNames(), ElementsAre("b.png", "c.png"));
    EXPECT_EQ(notice(shown[0]), TrashNotice::notPutBack);
    EXPECT_EQ(notice(shown[1]), std::nullopt);
}

TEST_F(TrashedCapturesTest, AnEmptiedTrashIsToldInPlace) {
    const auto shown = show({"a"});
    trashAndSettle(shown[0]);
    trash.empty();
    undo(shown[0]);
    EXPECT_EQ(notice(shown[0]), TrashNotice::notPutBack);
}

TEST_F(TrashedCapturesTest, AFileThatCouldNotBeMovedIsNotCalledMoved) {
    const fakes::CapturedLog log;
    const auto shown = show({"a", "b"});
    files.remove(shown[0]->url());
    trashAndSettle(shown[0]);
    EXPECT_EQ(notice(shown[0]), TrashNotice::notMoved);
    EXPECT_TRUE(log.contains("Trash failed: /shots/a.png: No such file or directory"));
    wait(6);
    EXPECT_EQ(notice(shown[0]), std::nullopt);
}

TEST_F(TrashedCapturesTest, UndoTakesTheLatestSlipFirst) {
    const auto shown = show({"a", "b", "c"});
    trashAndSettle(shown[0]);
    wait(1);
    actions.close(shown[1]);
    actions.undo();
    time.settle();
    EXPECT_THAT(shownNames(), ElementsAre("b.png", "c.png"));
    actions.undo();
    time.settle();
    EXPECT_THAT(shownNames(), ElementsAre("a.png", "b.png", "c.png"));
    EXPECT_TRUE(exists(shown[0]));
}

TEST_F(TrashedCapturesTest, ADismissalEndsTheNotices) {
    const auto shown = show({"a", "b"});
    trashAndSettle(shown[0]);
    actions.closeAll();
    EXPECT_THAT(state->trashNotices.value(), IsEmpty());
    EXPECT_FALSE(controller().isVisible());
    undo(shown[0]);
    EXPECT_FALSE(exists(shown[0]));
}

TEST_F(TrashedCapturesTest, TrashedCapturesDoNotComeBackToTheCardByThemselves) {
    const auto shown = show({"a", "b"});
    trashAndSettle(shown[0]);
    actions.closeAll();
    wait(60);
    controller().bringBack();
    time.settle();
    EXPECT_THAT(shownNames(), ElementsAre("b.png"));
}

TEST_F(TrashedCapturesTest, TheCountdownLeavesTheNoticeItsTime) {
    settings.dismissAfter.set(3);
    const auto shown = show({"a", "b"});
    actions.trash(shown[0]);
    wait(3);
    EXPECT_THAT(shownNames(), IsEmpty());
    EXPECT_TRUE(controller().isVisible());
    wait(3);
    EXPECT_FALSE(controller().isVisible());
}

TEST_F(TrashedCapturesTest, ANewCaptureAppearsBesideTheNotice) {
    const auto shown = show({"a"});
    trashAndSettle(shown[0]);
    show({"b"});
    EXPECT_EQ(notice(shown[0]), TrashNotice::moved);
    undo(shown[0]);
    EXPECT_THAT(shownNames(), ElementsAre("a.png", "b.png"));
}

TEST_F(TrashedCapturesTest, NothingHappensAfterTheControllerHasGone) {
    const auto shown = show({"a"});
    actions.trash(shown[0]);
    releaseController();
    wait(60);
    EXPECT_FALSE(exists(shown[0]));
}

}  // namespace
}  // namespace vantle
