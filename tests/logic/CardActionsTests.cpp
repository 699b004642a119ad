#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/FakeMediaLoader.h"
#include "fakes/PanelFixture.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CardActionsTest : public fakes::PanelFixture {};

std::vector<Url> urls(const std::vector<DragItem>& items) {
    std::vector<Url> urls;
    for (const auto& item : items) urls.push_back(item.url);
    return urls;
}

TEST_F(CardActionsTest, TheSelectionIsToggledAndCleared) {
    const auto shown = show({"a"});
    actions.toggleSelect(shown[0]);
    EXPECT_THAT(state->selected.value(), ElementsAre(shown[0]->id()));
    actions.clearSelection();
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

TEST_F(CardActionsTest, ADragOfAnUnselectedCaptureCarriesItAlone) {
    const auto shown = show({"a", "b", "c"});
    actions.toggleSelect(shown[0]);
    actions.toggleSelect(shown[1]);
    EXPECT_THAT(urls(actions.dragItems(shown[2])), ElementsAre(shown[2]->url()));
}

TEST_F(CardActionsTest, ADragCarriesThePicture) {
    fakes::FakeMediaLoader media;
    const auto pictured =
        Capture::create(Url::file("/shots/pictured.png"), fakes::VirtualClock::epoch);
    media.addImage(pictured->url(), Size{64, 40}, Size{64, 40});
    pictured->loadThumbnail(media);
    ASSERT_NE(pictured->thumbnail(), nullptr);
    const auto plain = capture("plain");
    showAll({pictured, plain});
    EXPECT_EQ(actions.dragItems(pictured).at(0).image, pictured->thumbnail());
    EXPECT_EQ(actions.dragItems(plain).at(0).image, nullptr);
    for (const CapturePointer& one : {plain, CapturePointer(pictured)}) actions.toggleSelect(one);
    EXPECT_EQ(actions.dragItems(plain).at(1).image, pictured->thumbnail());
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
    EXPECT_THAT(trash.requests, IsEmpty());
}

TEST_F(CardActionsTest, ActionsOnTheSelectionUseThePanelsOrder) {
    const auto shown = show({"a", "b", "c"});
    actions.toggleSelect(shown[2]);
    actions.toggleSelect(shown[0]);
    actions.copySelected();
    EXPECT_THAT(pasteboard.contents(), ElementsAre("file /shots/a.png", "file /shots/c.png"));
    actions.trashSelected();
    EXPECT_THAT(trash.requests, ElementsAre(ElementsAre(shown[0]->url(), shown[2]->url())));
    EXPECT_THAT(shownNames(), ElementsAre("b.png"));
}

TEST_F(CardActionsTest, ActionsOnAnEmptySelectionDoNothing) {
    show({"a"});
    actions.trashSelected();
    actions.copySelected();
    EXPECT_THAT(trash.requests, IsEmpty());
    EXPECT_EQ(pasteboard.timesWritten, 0);
}

TEST_F(CardActionsTest, OnlyOpenAndRevealWorkAfterTheControllerHasGone) {
    const auto shown = show({"a"});
    releaseController();
    actions.open(shown[0]);
    actions.reveal(shown[0]);
    EXPECT_THAT(opener.opened, ElementsAre(shown[0]->url()));
    EXPECT_THAT(opener.revealed, ElementsAre(shown[0]->url()));

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
    EXPECT_EQ(pasteboard.timesWritten, 0);
    EXPECT_THAT(trash.requests, IsEmpty());
    EXPECT_FALSE(sharing.isOpen);
}

}  // namespace
}  // namespace vantle
