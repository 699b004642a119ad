#include <gtest/gtest.h>

#include "samples/Samples.h"

namespace vantle {
namespace {

using namespace samples;

TEST(DrawingSize, NeverHasMorePixelsThanTheFile) {
    const auto image = drawn("rgb.png", {640, 480}, 2);
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(image->pixelsWide, 64);
    EXPECT_EQ(image->pixelsHigh, 48);
    EXPECT_EQ(image->size, (Size{640, 480}));
}

TEST(DrawingSize, HasMorePixelsOnADenseScreen) {
    for (const auto* name : {"dense.png", "large.jpg", "large.heic", "large.avif", "large.webp"}) {
        const auto image = drawn(name, {320, 208}, 1.5);
        ASSERT_NE(image, nullptr);
        EXPECT_EQ(image->pixelsWide, 480);
        EXPECT_EQ(image->pixelsHigh, 312);
        EXPECT_EQ(image->size, (Size{320, 208}));
    }
}

TEST(DrawingSize, IsAtLeastOnePixel) {
    const auto image = drawn("rgb.png", {0, 0});
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(image->rgba.size(), 4U);
}

struct SizedSample {
    const char* name;
    Size pixels;
    Size points;
};

void PrintTo(const SizedSample& sized, std::ostream* stream) {
    *stream << sized.name;
}

class SizeInPoints : public testing::TestWithParam<SizedSample> {};

TEST_P(SizeInPoints, FollowsTheResolutionOfTheFile) {
    Loader loader;
    const auto image = loader.openImage(file(GetParam().name));
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(image->pixelSize(), GetParam().pixels);
    EXPECT_NEAR(image->pointSize().width, GetParam().points.width, 1e-9);
    EXPECT_NEAR(image->pointSize().height, GetParam().points.height, 1e-9);
}

INSTANTIATE_TEST_SUITE_P(
    Formats, SizeInPoints,
    testing::Values(
        SizedSample{"rgb.png", usual, usual}, SizedSample{"dense.png", {2940, 1912}, {1470, 956}},
        SizedSample{"tall_dots.png", usual, {32, 48}}, SizedSample{"no_dots.png", usual, usual},
        SizedSample{"baseline.jpg", usual, usual}, SizedSample{"dense.jpg", usual, {32, 24}},
        SizedSample{"centimetres.jpg", usual, {64 * 72.0 / 71, 48 * 72.0 / 71}},
        // rotated.jpg is stored turned by 90 degrees, and has twice the density along its stored
        // width.
        SizedSample{"rotated.jpg", usual, {64, 24}}, SizedSample{"animated.gif", usual, usual},
        SizedSample{"raw.tiff", usual, usual}, SizedSample{"dense.tif", usual, {32, 24}},
        SizedSample{"centimetres.tif", usual, {32, 24}}, SizedSample{"turned.tif", usual, usual},
        SizedSample{"large.heic", {1000, 750}, {1000, 750}},
        SizedSample{"large.avif", {1000, 750}, {1000, 750}},
        SizedSample{"large.webp", {2000, 1501}, {2000, 1501}},
        // rotated.webp is stored turned by 90 degrees, and has twice the density along its stored
        // width.
        SizedSample{"rotated.webp", usual, {64, 24}}, SizedSample{"quarters.pdf", {0, 0}, usual},
        SizedSample{"turned.pdf", {0, 0}, usual}));

}  // namespace
}  // namespace vantle
