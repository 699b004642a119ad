#include <gtest/gtest.h>

#include "fakes/FakeMediaLoader.h"
#include "panel/CardLayout.h"

namespace vantle {
namespace {

std::shared_ptr<Capture> captureOfSize(Size pixels) {
    static int number = 0;
    const Url url = Url::file("/shots/" + std::to_string(++number) + ".png");
    const auto capture = Capture::create(url, Date{});
    fakes::FakeMediaLoader media;
    media.addImage(url, pixels, pixels);
    capture->loadThumbnail(media);
    return capture;
}

CapturePointer captureOfAspect(double aspect) {
    return captureOfSize({1000 * aspect, 1000});
}

CapturePointer captureOfUnknownSize() {
    return Capture::create(Url::file("/shots/unknown.png"), Date{});
}

TEST(CardLayout, TileHeightFollowsTheCount) {
    EXPECT_EQ(CardLayout::tileHeight(0), 190);
    EXPECT_EQ(CardLayout::tileHeight(1), 190);
    EXPECT_EQ(CardLayout::tileHeight(2), 126);
    EXPECT_EQ(CardLayout::tileHeight(3), 100);
    EXPECT_EQ(CardLayout::tileHeight(40), 100);
}

TEST(CardLayout, UnknownPixelSizeIsDrawnAs16To10) {
    const auto capture = captureOfUnknownSize();
    EXPECT_EQ(CardLayout::tileSize(1, *capture), (Size{304, 190}));
    EXPECT_EQ(CardLayout::tileSize(2, *capture), (Size{202, 126}));
    EXPECT_EQ(CardLayout::tileSize(3, *capture), (Size{160, 100}));
}

TEST(CardLayout, AWidthOfOnePixelIsAKnownSize) {
    EXPECT_EQ(CardLayout::tileSize(1, *captureOfSize({1, 2})), (Size{200, 190}));
}

TEST(CardLayout, A4To1PanoramaAloneIs308By120) {
    EXPECT_EQ(CardLayout::tileSize(1, *captureOfAspect(4)), (Size{308, 120}));
}

TEST(CardLayout, AScreenOf16To9AloneIs308By173) {
    EXPECT_EQ(CardLayout::tileSize(1, *captureOfSize({1920, 1080})), (Size{308, 173}));
}

TEST(CardLayout, A1To2PortraitAloneIs200By190) {
    EXPECT_EQ(CardLayout::tileSize(1, *captureOfAspect(0.5)), (Size{200, 190}));
}

TEST(CardLayout, TwoCapturesOfAspect2AreClampedTo224) {
    const std::vector<CapturePointer> pair{captureOfAspect(2), captureOfAspect(2)};
    EXPECT_EQ(CardLayout::tileSize(2, *pair[0]), (Size{224, 126}));
    EXPECT_EQ(CardLayout::contentWidth(pair), 458);
}

TEST(CardLayout, ASingleSquareIs200WideInARowOf260) {
    const auto capture = captureOfAspect(1);
    EXPECT_EQ(CardLayout::tileSize(1, *capture).width, 200);
    EXPECT_EQ(CardLayout::contentWidth({capture}), 260);
}

TEST(CardLayout, NarrowAndWideTilesAreClampedInARow) {
    EXPECT_EQ(CardLayout::tileSize(2, *captureOfAspect(0.1)).width, 90);
    EXPECT_EQ(CardLayout::tileSize(3, *captureOfAspect(0.1)).width, 70);
    EXPECT_EQ(CardLayout::tileSize(3, *captureOfAspect(5)).width, 178);
}

TEST(CardLayout, HalvesAreRoundedAwayFromZero) {
    EXPECT_EQ(CardLayout::tileSize(3, *captureOfSize({1125, 1000})).width, 113);  // 112.5
}

TEST(CardLayout, AnEmptyRowHasNoWidth) {
    EXPECT_EQ(CardLayout::contentWidth({}), 0);
}

TEST(CardLayout, TheWindowIsFlushInEachCorner) {
    const Rect visible{{100, 50}, {1400, 900}};
    const auto origin = [&](PanelCorner corner) {
        const Rect frame = CardLayout::windowFrame(corner, visible);
        EXPECT_EQ(frame.size, (Size{800, 330}));
        return frame.origin;
    };
    EXPECT_EQ(origin(PanelCorner::bottomRight), (Point{700, 50}));
    EXPECT_EQ(origin(PanelCorner::bottomLeft), (Point{100, 50}));
    EXPECT_EQ(origin(PanelCorner::topRight), (Point{700, 620}));
    EXPECT_EQ(origin(PanelCorner::topLeft), (Point{100, 620}));
}

TEST(PanelCorner, IsFoundByItsStoredTextOnly) {
    EXPECT_EQ(panelCorner("topLeft"), PanelCorner::topLeft);
    EXPECT_EQ(panelCorner("TopLeft"), std::nullopt);
    EXPECT_EQ(panelCorner(""), std::nullopt);
    EXPECT_EQ(label(PanelCorner::bottomLeft), "Bottom Left");
}

}  // namespace
}  // namespace vantle
