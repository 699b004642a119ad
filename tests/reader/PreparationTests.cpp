#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "reader/recognition/Preparation.h"

namespace vantle::reader {
namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes filled(PixelSize size, const Bytes& pixel) {
    Bytes bytes;
    for (int i = 0; i < size.width * size.height; ++i)
        bytes.insert(bytes.end(), pixel.begin(), pixel.end());
    return bytes;
}

int shadeOf(const Bytes& pixel) {
    return prepared(pixel, {1, 1}).pixels.at(0);
}

TEST(PreparationTest, ColorsBecomeTheirBrightness) {
    EXPECT_EQ(shadeOf({0, 0, 0, 255}), 0);
    EXPECT_EQ(shadeOf({255, 255, 255, 255}), 255);
    EXPECT_EQ(shadeOf({100, 100, 100, 255}), 100);
    EXPECT_NEAR(shadeOf({255, 0, 0, 255}), 76, 1);
    EXPECT_NEAR(shadeOf({0, 255, 0, 255}), 150, 1);
    EXPECT_NEAR(shadeOf({0, 0, 255, 255}), 29, 1);
}

TEST(PreparationTest, TranslucentPicturesLieOnWhite) {
    EXPECT_EQ(shadeOf({0, 0, 0, 0}), 255);
    EXPECT_EQ(shadeOf({0, 0, 0, 128}), 127);
    EXPECT_EQ(shadeOf({128, 128, 128, 128}), 255);
    EXPECT_EQ(shadeOf({255, 255, 255, 0}), 255) << "brighter than white";
}

TEST(PreparationTest, SmallPicturesBecomeTwiceAsLarge) {
    const GrayPicture picture = prepared(filled({30, 20}, {90, 90, 90, 255}), {30, 20});
    EXPECT_EQ(picture.size, (PixelSize{60, 40}));
    EXPECT_THAT(picture.pixels, testing::SizeIs(2400));
    EXPECT_THAT(picture.pixels, testing::Each(90));
}

TEST(PreparationTest, LargePicturesKeepTheirSize) {
    const PixelSize size{5000, 3300};
    EXPECT_EQ(prepared(filled(size, {0, 0, 0, 255}), size).size, size);
    const PixelSize middle{4000, 2000};
    const PixelSize enlarged = prepared(filled(middle, {0, 0, 0, 255}), middle).size;
    EXPECT_GT(enlarged.width, middle.width);
    EXPECT_LT(enlarged.width, 2 * middle.width);
    EXPECT_NEAR(enlarged.width, 2 * enlarged.height, 2);
}

TEST(PreparationTest, NoSideBecomesLongerThanTheRecognizerTakes) {
    for (const PixelSize size : {PixelSize{20'000, 1}, PixelSize{1, 20'000}}) {
        const PixelSize enlarged = prepared(filled(size, {0, 0, 0, 255}), size).size;
        EXPECT_LE(std::max(enlarged.width, enlarged.height), 32'000);
        EXPECT_GE(std::min(enlarged.width, enlarged.height), 1);
    }
}

TEST(PreparationTest, AnEnlargedEdgeStaysSharpAndInItsPlace) {
    Bytes bytes;
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 8; ++x) {
            const bool isDark = x < 4 && y >= 4;
            const Bytes pixel = isDark ? Bytes{0, 0, 0, 255} : Bytes{255, 255, 255, 255};
            bytes.insert(bytes.end(), pixel.begin(), pixel.end());
        }
    const GrayPicture picture = prepared(bytes, {8, 8});
    ASSERT_EQ(picture.size, (PixelSize{16, 16}));
    const auto at = [&](int x, int y) {
        return picture.pixels.at(static_cast<std::size_t>(y) * 16 + static_cast<std::size_t>(x));
    };
    for (const int near : {0, 3, 5}) {
        EXPECT_LT(at(near, 15 - near), 10);
        EXPECT_GT(at(15 - near, 15 - near), 245);
        EXPECT_GT(at(near, near), 245);
    }
    EXPECT_LT(at(7, 12), 128);
    EXPECT_GT(at(8, 12), 128);
    EXPECT_GT(at(3, 7), 128);
    EXPECT_LT(at(3, 8), 128);
}

}  // namespace
}  // namespace vantle::reader
