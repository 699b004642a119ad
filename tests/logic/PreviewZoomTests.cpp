#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "preview/PreviewLayout.h"
#include "preview/PreviewZoom.h"

namespace vantle {
namespace {

constexpr Size screen{1440, 900};

TEST(PreviewLayoutTest, APictureIsNeverLargerThanItsOwnPixels) {
    EXPECT_EQ(PreviewLayout::fitted({300, 200}, 1, {1000, 800}, false), (Size{300, 200}));
    EXPECT_EQ(PreviewLayout::fitted({300, 200}, 2, {1000, 800}, false), (Size{150, 100}));
}

TEST(PreviewLayoutTest, ALargePictureFitsInto85PercentOfTheScreen) {
    const Size maximum = PreviewLayout::maximumArea(screen);
    for (const Size pixels : {Size{7680, 4320}, Size{400, 9000}, Size{9000, 30}}) {
        const Size area =
            PreviewLayout::area(PreviewLayout::fitted(pixels, 1, maximum, false), maximum);
        const Rect glass = PreviewLayout::glass(area, screen);
        EXPECT_LE(glass.size.width, 0.85 * screen.width + 1);
        EXPECT_LE(glass.size.height, 0.85 * screen.height + 1);
        EXPECT_NEAR(glass.minX() + glass.size.width / 2, screen.width / 2, 1);
        EXPECT_NEAR(glass.minY() + glass.size.height / 2, screen.height / 2, 1);
    }
}

TEST(PreviewLayoutTest, APictureKeepsItsProportions) {
    const Size fitted =
        PreviewLayout::fitted({7680, 4320}, 1, PreviewLayout::maximumArea(screen), false);
    EXPECT_NEAR(fitted.width / fitted.height, 16.0 / 9, 1e-9);
}

TEST(PreviewLayoutTest, AVectorImageFillsTheRoom) {
    const Size fitted = PreviewLayout::fitted({100, 50}, 1, {1000, 800}, true);
    EXPECT_EQ(fitted, (Size{1000, 500}));
}

TEST(PreviewLayoutTest, ATinyPictureLeavesRoomForTheBar) {
    const Size area = PreviewLayout::area({4, 4}, PreviewLayout::maximumArea(screen));
    EXPECT_EQ(area, PreviewLayout::minimumArea);
}

TEST(PreviewLayoutTest, AnUnknownSizeHasTheSmallestArea) {
    EXPECT_EQ(PreviewLayout::fitted({}, 1, {1000, 800}, false), PreviewLayout::minimumArea);
}

/// A picture of 4000 × 2000 pixels that is shown at a quarter.
class PreviewZoomTest : public testing::Test {
protected:
    PreviewZoom zoom{{1000, 500}, {4000, 2000}, {1200, 800}};

    /// Returns the part of the picture (0 to 1 from its left) that is shown at `x`.
    double shownAt(double x) const {
        const double width = zoom.picture().width;
        return (x - (zoom.centre().x - width / 2)) / width;
    }
};

TEST_F(PreviewZoomTest, ShowsTheWholePictureFirst) {
    EXPECT_EQ(zoom.picture(), (Size{1000, 500}));
    EXPECT_TRUE(zoom.isFitted());
    EXPECT_FALSE(zoom.canMove());
}

TEST_F(PreviewZoomTest, TogglesBetweenTheWholePictureAndRealPixels) {
    zoom.toggleReal({});
    EXPECT_EQ(zoom.picture(), (Size{4000, 2000}));
    EXPECT_TRUE(zoom.isReal());
    EXPECT_TRUE(zoom.canMove());
    zoom.toggleReal({});
    EXPECT_EQ(zoom.picture(), (Size{1000, 500}));
    EXPECT_EQ(zoom.centre(), (Point{0, 0}));
}

TEST_F(PreviewZoomTest, WhatIsUnderThePointerStaysThere) {
    const double before = shownAt(200);
    zoom.toggleReal({200, 50});
    EXPECT_NEAR(shownAt(200), before, 1e-9);
    zoom.zoomBy(1.3, {200, 50});
    EXPECT_NEAR(shownAt(200), before, 1e-9);
}

TEST_F(PreviewZoomTest, TheAreaGrowsWithThePictureUpToTheLargest) {
    zoom.zoomBy(1.1, {});
    EXPECT_EQ(zoom.area(), (Size{1100, 550}));
    zoom.zoomBy(4, {});
    EXPECT_EQ(zoom.area(), (Size{1200, 800}));
}

TEST_F(PreviewZoomTest, NeverShowsLessThanTheWholePicture) {
    zoom.zoomBy(0.2, {300, 100});
    EXPECT_TRUE(zoom.isFitted());
    EXPECT_EQ(zoom.centre(), (Point{0, 0}));
}

TEST_F(PreviewZoomTest, ZoomsToEightTimesTheRealPixels) {
    zoom.zoomBy(1000, {});
    EXPECT_DOUBLE_EQ(zoom.picture().width, 8 * 4000.0);
}

TEST_F(PreviewZoomTest, CanBeMovedToTheEdgesAndNoFarther) {
    zoom.toggleReal({});
    zoom.moveBy(100, -50);
    EXPECT_EQ(zoom.centre(), (Point{100, -50}));
    zoom.moveBy(1e9, -1e9);
    EXPECT_EQ(zoom.centre(), (Point{(4000 - 1200) / 2.0, -(2000 - 800) / 2.0}));
}

TEST_F(PreviewZoomTest, APictureThatIsShownWholeCannotBeMoved) {
    zoom.moveBy(40, 40);
    EXPECT_EQ(zoom.centre(), (Point{0, 0}));
}

TEST_F(PreviewZoomTest, ASmallPictureHasItsRealPixelsAlready) {
    PreviewZoom small{{300, 200}, {300, 200}, {1200, 800}};
    EXPECT_TRUE(small.isReal());
    small.toggleReal({10, 10});
    EXPECT_EQ(small.picture(), (Size{300, 200}));
    small.zoomBy(3, {});
    EXPECT_EQ(small.picture(), (Size{900, 600}));
}

}  // namespace
}  // namespace vantle
