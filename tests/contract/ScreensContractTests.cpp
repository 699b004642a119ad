#include <gtest/gtest.h>

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

#include "fakes/FakeScreens.h"
#include "platform/qt/DensestScreen.h"
#include "platform/qt/QtGeometry.h"
#include "platform/qt/QtScreens.h"

namespace vantle {
namespace {

struct FakeDesktop {
    fakes::FakeScreens screens;
};

struct QtDesktop {
    QtDesktop() { QCursor::setPos(100, 200); }
    QtScreens screens;
};

bool same(const Screen& left, const Screen& right) {
    return left.frame == right.frame && left.visibleFrame == right.visibleFrame;
}

bool overlap(const Rect& left, const Rect& right) {
    return left.minX() < right.maxX() && right.minX() < left.maxX() && left.minY() < right.maxY() &&
           right.minY() < left.maxY();
}

template <typename Desktop>
class ScreensContract : public testing::Test {
protected:
    Desktop desktop;
    const Screens& screens = desktop.screens;
};

using Desktops = testing::Types<FakeDesktop, QtDesktop>;
TYPED_TEST_SUITE(ScreensContract, Desktops);

TYPED_TEST(ScreensContract, OneScreenStandsAtTheOrigin) {
    const auto all = this->screens.all();
    EXPECT_EQ(std::ranges::count(all, Point{0, 0}, [](const Screen& s) { return s.frame.origin; }),
              1);
}

TYPED_TEST(ScreensContract, ScreensDoNotOverlap) {
    const auto all = this->screens.all();
    for (std::size_t i = 0; i < all.size(); ++i)
        for (std::size_t j = 0; j < i; ++j) EXPECT_FALSE(overlap(all[i].frame, all[j].frame));
}

TYPED_TEST(ScreensContract, VisibleFramesLieInTheirScreens) {
    for (const Screen& screen : this->screens.all()) {
        EXPECT_GT(screen.visibleFrame.size.width, 0);
        EXPECT_GE(screen.visibleFrame.minX(), screen.frame.minX());
        EXPECT_GE(screen.visibleFrame.minY(), screen.frame.minY());
        EXPECT_LE(screen.visibleFrame.maxX(), screen.frame.maxX());
        EXPECT_LE(screen.visibleFrame.maxY(), screen.frame.maxY());
    }
}

TYPED_TEST(ScreensContract, TheMainScreenIsOneOfThem) {
    const auto all = this->screens.all();
    const auto main = this->screens.main();
    ASSERT_TRUE(main.has_value());
    EXPECT_TRUE(
        std::ranges::any_of(all, [&](const Screen& screen) { return same(screen, *main); }));
}

TYPED_TEST(ScreensContract, ThePointerIsOnOneScreen) {
    const Point pointer = this->screens.pointerLocation();
    EXPECT_EQ(std::ranges::count_if(
                  this->screens.all(),
                  [&](const Screen& screen) { return containsUpwards(screen.frame, pointer); }),
              1);
}

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
    EXPECT_EQ(densestScreen()(), 2);
}

TEST(QtGeometry, ThePrimaryScreenNeedNotStandAtTheOriginOfQt) {
    const QRect primary(1920, 200, 1440, 900);
    EXPECT_EQ(toScreenCoordinates(primary, primary), (Rect{{0, 0}, {1440, 900}}));
    EXPECT_EQ(toScreenCoordinates(QRect(0, 0, 1920, 1080), primary),
              (Rect{{-1920, 20}, {1920, 1080}}));
    EXPECT_EQ(toScreenCoordinates(QPoint(1920, 1099), primary), (Point{0, 1}));
}

TEST(QtGeometry, TheWayBackGivesTheSame) {
    const QRect primary(-300, 200, 1440, 900);
    for (const QRect& rect : {QRect(0, 0, 800, 330), QRect(-1000, -77, 1, 1), primary})
        EXPECT_EQ(fromScreenCoordinates(toScreenCoordinates(rect, primary), primary), rect);
}

TEST(QtGeometry, AWindowBetweenPointsKeepsItsSize) {
    const QRect primary(0, 0, 1440, 900);
    for (const double offset : {-0.5, -0.4, 0.0, 0.3, 0.5, 0.7})
        EXPECT_EQ(fromScreenCoordinates({{offset, 10 + offset}, {800, 330}}, primary).size(),
                  QSize(800, 330))
            << offset;
}

TEST(QtGeometry, ThePanelUsesThePrimaryScreenOfTheMoment) {
    EXPECT_EQ(fromScreenCoordinates({{10, 20}, {800, 330}}), QRect(10, 550, 800, 330));
}

}  // namespace
}  // namespace vantle
