#include <gtest/gtest.h>

#include <limits>

#include "panel/views/DisplayText.h"

namespace vantle {
namespace {

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

TEST(DisplayText, DatesUseTheLargestUnitThatFits) {
    using namespace std::chrono_literals;
    const Date now{std::chrono::seconds(1'800'000'000)};
    const auto ago = [now](auto distance) { return relativeDateText(now - distance, now); };
    EXPECT_EQ(ago(0s), QStringLiteral("now"));
    EXPECT_EQ(ago(999ms), QStringLiteral("now"));
    EXPECT_EQ(ago(1s), QStringLiteral("1 sec. ago"));
    EXPECT_EQ(ago(59s), QStringLiteral("59 sec. ago"));
    EXPECT_EQ(ago(60s), QStringLiteral("1 min. ago"));
    EXPECT_EQ(ago(119min), QStringLiteral("1 hr. ago"));
    EXPECT_EQ(ago(24h), QStringLiteral("1 day ago"));
    EXPECT_EQ(ago(48h), QStringLiteral("2 days ago"));
    EXPECT_EQ(ago(15 * 24h), QStringLiteral("2 wk. ago"));
    EXPECT_EQ(ago(70 * 24h), QStringLiteral("2 mo. ago"));
    EXPECT_EQ(ago(800 * 24h), QStringLiteral("2 yr. ago"));
    EXPECT_EQ(ago(-90s), QStringLiteral("in 1 min."));
}

TEST(DisplayText, ASubtitleWithoutASizeHasNoSeparator) {
    const Date now{std::chrono::seconds(1'800'000'000)};
    EXPECT_EQ(subtitle({2940, 1912}, now, now), QString::fromUtf8("2940 × 1912  ·  now"));
    EXPECT_EQ(subtitle({0, 0}, now, now), QStringLiteral("now"));
}

}  // namespace
}  // namespace vantle
