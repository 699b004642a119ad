#include <gtest/gtest.h>

#include <limits>

#include "panel/views/DisplayText.h"

namespace vantle {
namespace {

TEST(DisplayText, NamesOfAnyBytesCanBeShownOnOneLine) {
    EXPECT_EQ(displayName("Shot.png"), QStringLiteral("Shot.png"));
    EXPECT_EQ(displayName("two\nlines.png"), QString::fromUtf8("two␊lines.png"));
    EXPECT_EQ(displayName("\xff.png"), QString::fromUtf8("\uFFFD.png"));
    EXPECT_EQ(displayName("\x7f\x01"), QString::fromUtf8("␡␁"));
    EXPECT_EQ(displayName("Ünï.png"), QString::fromUtf8("Ünï.png"));
}

TEST(DisplayText, PixelSizesAreWholeNumbers) {
    EXPECT_EQ(pixelSizeText({2940, 1912}), QString::fromUtf8("2940 × 1912"));
    EXPECT_EQ(pixelSizeText({0, 0}), QString());
}

TEST(DisplayText, DurationsAreMinutesAndSeconds) {
    EXPECT_EQ(durationText(0), QStringLiteral("0:00"));
    EXPECT_EQ(durationText(59.5), QStringLiteral("1:00"));
    EXPECT_EQ(durationText(65), QStringLiteral("1:05"));
    EXPECT_EQ(durationText(3725), QStringLiteral("62:05"));
    EXPECT_EQ(durationText(std::numeric_limits<double>::quiet_NaN()), QString());
}

}  // namespace
}  // namespace vantle
