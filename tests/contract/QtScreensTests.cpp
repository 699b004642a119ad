#include <gtest/gtest.h>

#include <QCursor>

#include "contract/ScreensContract.h"
#include "platform/qt/MaximumPixelsPerPoint.h"
#include "platform/qt/QtScreens.h"

namespace vantle {
namespace {

struct QtDesktop {
    QtDesktop() { QCursor::setPos(100, 200); }
    QtScreens screens;
};

INSTANTIATE_TYPED_TEST_SUITE_P(QtScreens, ScreensContract, QtDesktop);

// The private displays of these tests: 1440 × 900 points, and to its right a dense one of
// 960 × 600 points, whose top stands 100 points lower.
TEST(QtScreensTest, HeightsGrowUpwardsFromThePrimaryScreen) {
    const auto all = QtScreens().all();
    ASSERT_EQ(all.size(), 2U);
    EXPECT_EQ(all[0].frame, (Rect{{0, 0}, {1440, 900}}));
    EXPECT_EQ(all[1].frame, (Rect{{1440, 200}, {960, 600}}));
    const auto main = QtScreens().main();
    ASSERT_TRUE(main.has_value());
    EXPECT_EQ(main->frame, all[0].frame);
}

TEST(QtScreensTest, ThePointerAtTheTopEdgeIsOnTheScreenBelowThatEdge) {
    const QtScreens screens;
    QCursor::setPos(100, 0);
    EXPECT_EQ(screens.pointerLocation(), (Point{100, 900}));
    QCursor::setPos(1439, 899);
    EXPECT_EQ(screens.pointerLocation(), (Point{1439, 1}));
    EXPECT_TRUE(containsUpwards(screens.all()[0].frame, screens.pointerLocation()));
    QCursor::setPos(1440, 100);
    EXPECT_TRUE(containsUpwards(screens.all()[1].frame, screens.pointerLocation()));
}

TEST(QtScreensTest, TheDensestScreenDecides) {
    EXPECT_EQ(maximumPixelsPerPoint()(), 2);
}

}  // namespace
}  // namespace vantle
