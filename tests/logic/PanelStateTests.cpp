#include <gtest/gtest.h>

#include "panel/PanelState.h"

namespace vantle {
namespace {

TEST(PanelState, IsFreshAndEmpty) {
    const PanelState state;
    EXPECT_EQ(state.progress.value(), 1.0);
    EXPECT_EQ(state.corner, PanelCorner::bottomRight);
    EXPECT_FALSE(state.visible.value());
    EXPECT_FALSE(state.hovering.value());
    EXPECT_TRUE(state.captures.value().empty());
    EXPECT_TRUE(state.selected.value().empty());
    EXPECT_TRUE(state.pinned.value().empty());
    EXPECT_EQ(state.marquee.value(), std::nullopt);
    EXPECT_EQ(state.copiedID.value(), std::nullopt);
}

TEST(PanelState, HasAnAnimationOnlyDuringAnimatedChanges) {
    PanelState state;
    const Animation spring{.response = 0.3, .dampingFraction = 0.7};
    std::optional<Animation> seen;
    const auto subscription =
        state.pinned.observeChanges([&](const auto&) { seen = state.animation(); });
    state.animate(spring, [&] { state.pinned.set({UUID::random()}); });
    EXPECT_EQ(seen, spring);
    state.pinned.set({});
    EXPECT_EQ(seen, std::nullopt);
}

}  // namespace
}  // namespace vantle
