#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "panel/Selection.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

/// A row of three captures, each thumbnail 100 × 80, 10 apart, from (10, 10).
class SelectionTest : public testing::Test {
protected:
    SelectionTest() {
        for (const char* name : {"a", "b", "c"}) {
            shown.push_back(
                Capture::create(Url::file("/shots/" + std::string(name) + ".png"), Date{}));
            const double x = 10 + 110.0 * static_cast<double>(thumbnails.size());
            thumbnails.push_back({shown.back()->id(), {{x, 10}, {100, 80}}});
        }
        state.captures.set(shown);
    }

    void drag(const Rect& rect) { selection.selectIntersecting(rect, thumbnails); }
    const std::set<UUID>& selected() const { return state.selected.value(); }

    std::vector<CapturePointer> shown;
    std::vector<VisibleThumbnail> thumbnails;
    PanelState state;
    Selection selection{state};
};

TEST_F(SelectionTest, TogglingTwiceChangesNothing) {
    selection.toggle(shown[0]);
    EXPECT_THAT(selected(), ElementsAre(shown[0]->id()));
    selection.toggle(shown[0]);
    EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(SelectionTest, ClearingAnEmptySelectionAnnouncesNothing) {
    int announced = 0;
    const auto subscription = state.selected.observeChanges([&](const auto&) { ++announced; });
    selection.clear();
    EXPECT_EQ(announced, 0);
    selection.toggle(shown[0]);
    selection.clear();
    EXPECT_EQ(announced, 2);
    EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(SelectionTest, IsInTheOrderOfTheCardWithoutCapturesThatLeft) {
    for (const int i : {2, 1, 0}) selection.toggle(shown[static_cast<std::size_t>(i)]);
    EXPECT_EQ(selection.captures(), shown);
    state.captures.set({shown[0], shown[2]});
    EXPECT_THAT(selection.captures(), ElementsAre(shown[0], shown[2]));
}

TEST_F(SelectionTest, SelectsNothingBesideOrAtTheEdgeOfAThumbnail) {
    drag({{110, 20}, {10, 10}});
    EXPECT_THAT(selected(), IsEmpty());
    drag({{10, 90}, {300, 10}});
    EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(SelectionTest, AStraightLineAcrossThumbnailsSelectsThem) {
    drag({{5, 50}, {300, 0}});
    EXPECT_EQ(selected().size(), 3u);
}

TEST_F(SelectionTest, ShrinkingDeselectsThumbnailsThatAreNoLongerTouched) {
    drag({{5, 5}, {200, 50}});
    EXPECT_EQ(selected().size(), 2u);
    drag({{5, 5}, {50, 50}});
    EXPECT_THAT(selected(), UnorderedElementsAre(shown[0]->id()));
}

TEST_F(SelectionTest, TheTouchedThumbnailsReplaceTheSelection) {
    selection.toggle(shown[2]);
    drag({{5, 5}, {50, 50}});
    EXPECT_THAT(selected(), UnorderedElementsAre(shown[0]->id()));
}

TEST_F(SelectionTest, AThumbnailScrolledOutOfSightIsNotSelected) {
    thumbnails[0].frame.size = {0, 80};
    drag({{0, 0}, {400, 400}});
    EXPECT_THAT(selected(), UnorderedElementsAre(shown[1]->id(), shown[2]->id()));
}

TEST_F(SelectionTest, AVisiblePartOfAThumbnailIsEnough) {
    thumbnails[0].frame.size = {0.5, 80};
    thumbnails[1].frame.size = {100, 0.5};
    drag({{0, 0}, {400, 400}});
    EXPECT_EQ(selected().size(), 3u);
}

TEST_F(SelectionTest, AnEqualSelectionIsNotAnnounced) {
    drag({{5, 5}, {50, 50}});
    int announcements = 0;
    const auto subscription = state.selected.observeChanges([&](const auto&) { ++announcements; });
    drag({{5, 5}, {60, 60}});
    EXPECT_EQ(announcements, 0);
}

TEST_F(SelectionTest, ATileThatLeavesIsNotSelected) {
    state.captures.set({shown[1], shown[2]});
    drag({{0, 0}, {400, 400}});
    EXPECT_THAT(selected(), UnorderedElementsAre(shown[1]->id(), shown[2]->id()));
}

}  // namespace
}  // namespace vantle
