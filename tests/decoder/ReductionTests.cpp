#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

#include "decoder/formats/Orientation.h"
#include "decoder/formats/ThreadedReduction.h"

namespace vantle::decoder {
namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes noise(int size) {
    std::mt19937 random(1);
    Bytes bytes(static_cast<std::size_t>(size));
    for (auto& byte : bytes) byte = static_cast<std::uint8_t>(random());
    return bytes;
}

Picture reduced(const Bytes& rows, PixelSize source, PixelSize target, PixelLayout layout,
                const Kernels& kernels = Kernels::best()) {
    Reducer reducer(source, target, layout, kernels);
    const auto rowSize =
        static_cast<std::size_t>(source.width) * static_cast<std::size_t>(channelCount(layout));
    for (std::size_t begin = 0; begin < rows.size(); begin += rowSize)
        reducer.addRow(rows.data() + begin);
    EXPECT_TRUE(reducer.isComplete());
    return reducer.take();
}

constexpr std::array layouts = {PixelLayout::gray, PixelLayout::rgb, PixelLayout::rgba,
                                PixelLayout::premultipliedRgba, PixelLayout::cmyk};

TEST(Reducer, KeepsAPictureThatFits) {
    const PixelSize size{37, 21};
    const Bytes rows = noise(37 * 21 * 3);
    const Picture picture = reduced(rows, size, size, PixelLayout::rgb);
    for (std::size_t pixel = 0; pixel < std::size_t{37} * 21; ++pixel) {
        for (std::size_t part = 0; part < 3; ++part)
            ASSERT_EQ(picture.rgba[4 * pixel + part], rows[3 * pixel + part]);
        ASSERT_EQ(picture.rgba[4 * pixel + 3], 255);
    }
}

TEST(Reducer, KeepsOneColorAtAnySize) {
    for (const PixelLayout layout : layouts)
        for (const PixelSize source : {PixelSize{1, 1}, {2, 1}, {1, 700}, {333, 77}, {1000, 513}})
            for (const PixelSize target : {PixelSize{1, 1}, {1, 1}, {17, 9}, {100, 50}}) {
                if (target.width > source.width || target.height > source.height) continue;
                const Bytes rows(
                    static_cast<std::size_t>(source.width * source.height * channelCount(layout)),
                    200);
                const Picture picture = reduced(rows, source, target, layout);
                EXPECT_EQ(picture.size, target);
                const bool isStraight = layout == PixelLayout::rgba;
                for (std::size_t i = 0; i < picture.rgba.size(); i += 4)
                    ASSERT_EQ(picture.rgba[i], isStraight ? 157 : 200);
            }
}

/// Returns the value of a wave that is slow enough to survive the reduction.
std::uint8_t wave(double x, double y) {
    return static_cast<std::uint8_t>(std::lround(127.5 + 100 * std::sin(x * 2 * std::numbers::pi) *
                                                             std::cos(y * 4 * std::numbers::pi)));
}

TEST(Reducer, KeepsThePlacesOfColors) {
    for (const PixelSize source : {PixelSize{640, 480}, {1001, 703}, {1999, 1501}}) {
        const PixelSize target{160, 120};
        Bytes rows;
        for (int y = 0; y < source.height; ++y)
            for (int x = 0; x < source.width; ++x)
                rows.push_back(wave((x + 0.5) / source.width, (y + 0.5) / source.height));
        const Picture picture = reduced(rows, source, target, PixelLayout::gray);
        for (int y = 2; y < target.height - 2; ++y)
            for (int x = 2; x < target.width - 2; ++x)
                ASSERT_NEAR(picture.rgba[static_cast<std::size_t>(4 * (y * target.width + x))],
                            wave((x + 0.5) / target.width, (y + 0.5) / target.height), 2)
                    << source.width << " at " << x << ", " << y;
    }
}

TEST(Reducer, NeverGivesMoreColorThanAlpha) {
    const Bytes rows = noise(300 * 200 * 4);
    const Picture picture = reduced(rows, {300, 200}, {90, 60}, PixelLayout::rgba);
    for (std::size_t i = 0; i < picture.rgba.size(); i += 4)
        for (std::size_t part = 0; part < 3; ++part)
            ASSERT_LE(picture.rgba[i + part], picture.rgba[i + 3]);
}

TEST(Reducer, ColorsOfTransparentPixelsDoNotSpread) {
    // Transparent bright red, beside opaque black.
    Bytes rows;
    for (int i = 0; i < 64 * 64; ++i) {
        const Bytes pixel = i % 64 < 32 ? Bytes{255, 0, 0, 0} : Bytes{0, 0, 0, 255};
        rows.insert(rows.end(), pixel.begin(), pixel.end());
    }
    const Picture picture = reduced(rows, {64, 64}, {16, 16}, PixelLayout::rgba);
    for (std::size_t i = 0; i < picture.rgba.size(); i += 4) ASSERT_EQ(picture.rgba[i], 0);
}

TEST(Reducer, IsNotCompleteWithoutItsLastRow) {
    const Bytes row(300, 9);
    Reducer reducer({100, 50}, {10, 5}, PixelLayout::rgb);
    for (int y = 0; y < 49; ++y) reducer.addRow(row.data());
    EXPECT_FALSE(reducer.isComplete());
    reducer.addRow(row.data());
    EXPECT_TRUE(reducer.isComplete());
    reducer.addRow(row.data());
    EXPECT_TRUE(reducer.isComplete());
}

TEST(Kernels, TheBestAndThePortableOnesAgree) {
    for (const PixelLayout layout : layouts)
        for (const PixelSize source : {PixelSize{500, 333}, {1003, 777}}) {
            const Bytes rows = noise(source.width * source.height * channelCount(layout));
            const Picture best = reduced(rows, source, {120, 90}, layout);
            const Picture portable = reduced(rows, source, {120, 90}, layout, Kernels::portable());
            for (std::size_t i = 0; i < best.rgba.size(); ++i)
                ASSERT_NEAR(best.rgba[i], portable.rgba[i], 1);
        }
}

TEST(ThreadedReduction, GivesTheSameAsTheReducer) {
    const PixelSize source{1200, 900};
    const Bytes rows = noise(1200 * 900 * 3);
    ThreadedReduction reduction(source, {300, 225}, PixelLayout::rgb);
    for (std::size_t begin = 0; begin < rows.size(); begin += 3600) {
        std::copy_n(rows.begin() + static_cast<std::ptrdiff_t>(begin), 3600, reduction.row());
        reduction.rowIsWritten();
    }
    const auto picture = reduction.take();
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->rgba, reduced(rows, source, {300, 225}, PixelLayout::rgb).rgba);
}

TEST(ThreadedReduction, GivesNothingIfRowsAreMissing) {
    ThreadedReduction reduction({100, 50}, {10, 5}, PixelLayout::rgb);
    reduction.row();
    reduction.rowIsWritten();
    EXPECT_FALSE(reduction.take());
}

/// Returns a picture with the numbers 1 to 6 in two rows of three, as its red values.
Picture numbered() {
    Picture picture{{3, 2}, {}};
    for (std::uint8_t number = 1; number <= 6; ++number)
        picture.rgba.insert(picture.rgba.end(), {number, 0, 0, 255});
    return picture;
}

std::vector<int> numbers(const Picture& picture) {
    std::vector<int> numbers;
    for (std::size_t i = 0; i < picture.rgba.size(); i += 4) numbers.push_back(picture.rgba[i]);
    return numbers;
}

TEST(Orientation, MakesThePictureUpright) {
    const std::array<std::vector<int>, 8> expected = {{{1, 2, 3, 4, 5, 6},
                                                       {3, 2, 1, 6, 5, 4},
                                                       {6, 5, 4, 3, 2, 1},
                                                       {4, 5, 6, 1, 2, 3},
                                                       {1, 4, 2, 5, 3, 6},
                                                       {4, 1, 5, 2, 6, 3},
                                                       {6, 3, 5, 2, 4, 1},
                                                       {3, 6, 2, 5, 1, 4}}};
    for (unsigned number = 1; number <= 8; ++number) {
        const Picture picture = upright(numbered(), orientationNumbered(number));
        EXPECT_EQ(picture.size, number >= 5 ? (PixelSize{2, 3}) : (PixelSize{3, 2}));
        EXPECT_EQ(numbers(picture), expected[number - 1]) << number;
    }
}

}  // namespace
}  // namespace vantle::decoder
