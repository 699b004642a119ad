#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

#include "platform/Canvas.h"
#include "support/Image.h"

namespace vantle {

/// Red, green and blue.
using CanvasColor = std::array<int, 3>;

/// Each desk has canvases for screens of any density, and reads a PNG file with its size in points.
template <typename Desk>
class CanvasContract : public testing::Test {
protected:
    Image drawn(const Drawing& drawing, double scale = 1) {
        const auto png = desk.canvas(scale)->drawer(drawing)();
        EXPECT_TRUE(png);
        return png ? desk.read(png.value()) : Image();
    }
    static CanvasColor colorAt(const Image& image, int x, int y) {
        const auto pixel = static_cast<std::size_t>(y * image.pixelsWide + x) * 4;
        return {image.rgba.at(pixel), image.rgba.at(pixel + 1), image.rgba.at(pixel + 2)};
    }
    /// Returns the area that contains all white pixels, as fractions of the picture's size.
    static Rect whitePart(const Image& image) {
        int left = image.pixelsWide;
        int top = image.pixelsHigh;
        int right = 0;
        int bottom = 0;
        for (int y = 0; y < image.pixelsHigh; ++y)
            for (int x = 0; x < image.pixelsWide; ++x) {
                if (colorAt(image, x, y) != CanvasColor{255, 255, 255}) continue;
                left = std::min(left, x);
                top = std::min(top, y);
                right = std::max(right, x + 1);
                bottom = std::max(bottom, y + 1);
            }
        const double width = image.pixelsWide;
        const double height = image.pixelsHigh;
        return {{left / width, top / height}, {(right - left) / width, (bottom - top) / height}};
    }

    const Drawing gradient{{400, 200}, {{1, 0, 0, 1}, {0, 0, 1, 1}, -30}, std::nullopt};
    Desk desk;
};

TYPED_TEST_SUITE_P(CanvasContract);

TYPED_TEST_P(CanvasContract, APictureHasAsManyPixelsAsPointsTimesTheScale) {
    for (const double scale : {1.0, 1.5, 2.0}) {
        const Image image = this->drawn(this->gradient, scale);
        EXPECT_EQ(image.pixelsWide, 400 * scale);
        EXPECT_EQ(image.pixelsHigh, 200 * scale);
    }
}

TYPED_TEST_P(CanvasContract, APictureStoresItsSizeInPoints) {
    for (const double scale : {1.0, 1.5, 2.0}) {
        const Image image = this->drawn(this->gradient, scale);
        EXPECT_NEAR(image.size.width, 400, 0.3);
        EXPECT_NEAR(image.size.height, 200, 0.3);
    }
}

TYPED_TEST_P(CanvasContract, AGradientRunsFromCornerToCorner) {
    const Image image = this->drawn(this->gradient);
    EXPECT_EQ(this->colorAt(image, 0, 0), (CanvasColor{255, 0, 0}));
    EXPECT_EQ(this->colorAt(image, 399, 199), (CanvasColor{0, 0, 255}));
    const CanvasColor middle = this->colorAt(image, 200, 100);
    EXPECT_NEAR(middle[0], 127, 2);
    EXPECT_NEAR(middle[2], 127, 2);
    // The gradient goes more to the right than down.
    EXPECT_GT(this->colorAt(image, 399, 0)[2], this->colorAt(image, 0, 199)[2]);
}

TYPED_TEST_P(CanvasContract, ATextIsCentred) {
    Drawing drawing = this->gradient;
    drawing.text = CenteredText{"HHH", 60};
    const Rect letters = this->whitePart(this->drawn(drawing));
    EXPECT_GT(letters.size.width, 0.2);
    EXPECT_NEAR((letters.minX() + letters.maxX()) / 2, 0.5, 0.02);
    EXPECT_NEAR((letters.minY() + letters.maxY()) / 2, 0.5, 0.06);
    const Rect dense = this->whitePart(this->drawn(drawing, 2));
    EXPECT_NEAR(dense.size.width, letters.size.width, 0.02);
}

REGISTER_TYPED_TEST_SUITE_P(CanvasContract, APictureHasAsManyPixelsAsPointsTimesTheScale,
                            APictureStoresItsSizeInPoints, AGradientRunsFromCornerToCorner,
                            ATextIsCentred);

}  // namespace vantle
