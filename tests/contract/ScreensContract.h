#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>

#include "fakes/FakeScreens.h"

namespace vantle {

struct FakeDesktop {
    fakes::FakeScreens screens;
};

inline bool same(const Screen& left, const Screen& right) {
    return left.frame == right.frame && left.visibleFrame == right.visibleFrame;
}

inline bool overlap(const Rect& left, const Rect& right) {
    return left.minX() < right.maxX() && right.minX() < left.maxX() && left.minY() < right.maxY() &&
           right.minY() < left.maxY();
}

/// A desktop with at least one screen.
template <typename Desktop>
class ScreensContract : public testing::Test {
protected:
    Desktop desktop;
    const Screens& screens = desktop.screens;
};

TYPED_TEST_SUITE_P(ScreensContract);

TYPED_TEST_P(ScreensContract, OneScreenIsAtTheOrigin) {
    const auto all = this->screens.all();
    EXPECT_EQ(std::ranges::count(all, Point{0, 0}, [](const Screen& s) { return s.frame.origin; }),
              1);
}

TYPED_TEST_P(ScreensContract, ScreensDoNotOverlap) {
    const auto all = this->screens.all();
    for (std::size_t i = 0; i < all.size(); ++i)
        for (std::size_t j = 0; j < i; ++j) EXPECT_FALSE(overlap(all[i].frame, all[j].frame));
}

TYPED_TEST_P(ScreensContract, VisibleFramesLieInTheirScreens) {
    for (const Screen& screen : this->screens.all()) {
        EXPECT_GT(screen.visibleFrame.size.width, 0);
        EXPECT_GE(screen.visibleFrame.minX(), screen.frame.minX());
        EXPECT_GE(screen.visibleFrame.minY(), screen.frame.minY());
        EXPECT_LE(screen.visibleFrame.maxX(), screen.frame.maxX());
        EXPECT_LE(screen.visibleFrame.maxY(), screen.frame.maxY());
    }
}

TYPED_TEST_P(ScreensContract, TheMainScreenIsOneOfThem) {
    const auto all = this->screens.all();
    const auto main = this->screens.main();
    ASSERT_TRUE(main.has_value());
    EXPECT_TRUE(
        std::ranges::any_of(all, [&](const Screen& screen) { return same(screen, *main); }));
}

TYPED_TEST_P(ScreensContract, ThePointerIsOnOneScreen) {
    const Point pointer = this->screens.pointerLocation();
    EXPECT_EQ(std::ranges::count_if(
                  this->screens.all(),
                  [&](const Screen& screen) { return containsUpwards(screen.frame, pointer); }),
              1);
}

REGISTER_TYPED_TEST_SUITE_P(ScreensContract, OneScreenIsAtTheOrigin, ScreensDoNotOverlap,
                            VisibleFramesLieInTheirScreens, TheMainScreenIsOneOfThem,
                            ThePointerIsOnOneScreen);

}  // namespace vantle
