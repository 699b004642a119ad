#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/PanelFixture.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CardActionsTest : public fakes::PanelFixture {
protected:
    CardActionsTest() {
        fileActions.open = [this](const Url& url) { opened.push_back(url); };
        fileActions.reveal = [this](const Url& url) { revealed.push_back(url); };
        fileActions.copy = [this](const auto& captures) { copied = captures; };
        fileActions.share = [this](const auto& capture, const Rect&) { shared = capture; };
        fileActions.trash = [this](const auto& captures) { trashed = captures; };
    }

    std::vector<Url> opened;
    std::vector<Url> revealed;
    std::vector<CapturePointer> copied;
    std::vector<CapturePointer> trashed;
    CapturePointer shared;
};

std::vector<Url> urls(const std::vector<DragItem>& items) {
    std::vector<Url> urls;
    for (const auto& item : items) urls.push_back(item.url);
    return urls;
}

TEST_F(CardActionsTest, ToggleSelectTwiceLeavesTheSelectionAsItWas) {
    const auto shown = show({"a"});
    actions.toggleSelect(shown[0]);
    EXPECT_THAT(state->selected.value(), ElementsAre(shown[0]->id()));
    actions.toggleSelect(shown[0]);
    EXPECT_THAT(state->selected.value(), IsEmpty());
}

TEST_F(CardActionsTest, TogglePinIsAnimatedWithItsOwnSpring) {
    const auto shown = show({"a"});
    std::optional<Animation> animation;
    const auto subscription =
        state->pinned.observeChanges([&](const auto&) { animation = state->animation(); });
    actions.togglePin(shown[0]);
    EXPECT_EQ(animation, (Animation{.response = 0.3, .dampingFraction = 0.7}));
    actions.togglePin(shown[0]);
    EXPECT_THAT(state->pinned.value(), IsEmpty());
}

TEST_F(CardActionsTest, ClearingAnEmptySelectionAnnouncesNothing) {
    const auto shown = show({"a"});
    int announced = 0;
    const auto subscription = state->selected.observeChanges([&](const auto&) { ++announced; });
    actions.clearSelection();
    EXPECT_EQ(announced, 0);
    actions.toggleSelect(shown[0]);
    actions.clearSelection();
    EXPECT_EQ(announced, 2);
    EXPECT_THAT(state->selected.value(), IsEmpty());
}

TEST_F(CardActionsTest, ADragOfAnUnselectedCaptureCarriesItAlone) {
    const auto shown = show({"a", "b", "c"});
    actions.toggleSelect(shown[0]);
    actions.toggleSelect(shown[1]);
    EXPECT_THAT(urls(actions.dragItems(shown[2])), ElementsAre(shown[2]->url()));
}

TEST_F(CardActionsTest, ADragOfASelectedCaptureCarriesItFirstThenTheOthersInOrder) {
    const auto shown = show({"a", "b", "c", "d"});
    for (const int i : {0, 2, 3}) actions.toggleSelect(shown[static_cast<std::size_t>(i)]);
    EXPECT_THAT(urls(actions.dragItems(shown[2])),
                ElementsAre(shown[2]->url(), shown[0]->url(), shown[3]->url()));
}

TEST_F(CardActionsTest, CloseRemovesOneAndCloseAllDismisses) {
    const auto shown = show({"a", "b", "c"});
    actions.close(shown[1]);
    EXPECT_THAT(shownNames(), ElementsAre("a.png", "c.png"));
    actions.closeAll();
    EXPECT_FALSE(controller().isVisible());
}

TEST_F(CardActionsTest, RemoveSelectedTakesTheSelectedAndLeavesTheirFiles) {
    const auto shown = show({"a", "b", "c"});
    actions.removeSelected();
    EXPECT_EQ(shownNames().size(), 3u);
    actions.toggleSelect(shown[0]);
    actions.toggleSelect(shown[2]);
    actions.removeSelected();
    EXPECT_THAT(shownNames(), ElementsAre("b.png"));
    EXPECT_THAT(trashed, IsEmpty());
}

TEST_F(CardActionsTest, SelectionWideActionsTakeTheSelectedInPanelOrder) {
    const auto shown = show({"a", "b", "c"});
    actions.toggleSelect(shown[2]);
    actions.toggleSelect(shown[0]);
    actions.copySelected();
    EXPECT_THAT(copied, ElementsAre(shown[0], shown[2]));
    actions.trashSelected();
    EXPECT_THAT(trashed, ElementsAre(shown[0], shown[2]));
    EXPECT_THAT(shownNames(), ElementsAre("b.png"));
}

TEST_F(CardActionsTest, WithNothingSelectedSelectionWideActionsAskForNothing) {
    show({"a"});
    bool asked = false;
    fileActions.trash = [&](const auto&) { asked = true; };
    actions.trashSelected();
    actions.copySelected();
    EXPECT_FALSE(asked);
    EXPECT_THAT(copied, IsEmpty());
}

TEST_F(CardActionsTest, FileActionsReachTheFile) {
    const auto shown = show({"a", "b"});
    actions.open(shown[0]);
    actions.reveal(shown[1]);
    actions.copy(shown[0]);
    actions.share(shown[1], Rect{});
    actions.trash(shown[0]);
    EXPECT_THAT(opened, ElementsAre(shown[0]->url()));
    EXPECT_THAT(revealed, ElementsAre(shown[1]->url()));
    EXPECT_THAT(copied, ElementsAre(shown[0]));
    EXPECT_EQ(shared, shown[1]);
    EXPECT_THAT(trashed, ElementsAre(shown[0]));
    EXPECT_THAT(shownNames(), ElementsAre("b.png"));
}

TEST_F(CardActionsTest, ActionsThatAreNotOfferedDoNothing) {
    fileActions = {};
    const auto shown = show({"a"});
    actions.open(shown[0]);
    actions.reveal(shown[0]);
    actions.copy(shown[0]);
    actions.share(shown[0], Rect{});
    actions.trash(shown[0]);
    actions.toggleSelect(shown[0]);
    actions.copySelected();
    actions.trashSelected();
    EXPECT_THAT(shownNames(), ElementsAre("a.png"));
}

TEST_F(CardActionsTest, OnceTheControllerHasGoneOnlyOpenAndRevealStillWork) {
    const auto shown = show({"a"});
    releaseController();
    actions.open(shown[0]);
    actions.reveal(shown[0]);
    EXPECT_THAT(opened, ElementsAre(shown[0]->url()));
    EXPECT_THAT(revealed, ElementsAre(shown[0]->url()));

    actions.close(shown[0]);
    actions.closeAll();
    actions.copy(shown[0]);
    actions.share(shown[0], Rect{});
    actions.trash(shown[0]);
    actions.toggleSelect(shown[0]);
    actions.togglePin(shown[0]);
    actions.clearSelection();
    actions.dragBegan();
    actions.dragEnded(true, {shown[0]->url()});
    actions.copySelected();
    actions.trashSelected();
    actions.removeSelected();
    EXPECT_THAT(actions.dragItems(shown[0]), IsEmpty());
    EXPECT_THAT(copied, IsEmpty());
    EXPECT_THAT(trashed, IsEmpty());
    EXPECT_EQ(shared, nullptr);
}

}  // namespace
}  // namespace vantle
