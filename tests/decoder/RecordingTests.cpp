#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "samples/Samples.h"

namespace vantle {
namespace {

using namespace samples;

class RecordingTest : public testing::Test {
protected:
    std::unique_ptr<RecordingFile> opened(const std::string& name) {
        return loader.openRecording(file(name));
    }

    Loader loader;
};

class RecordingOfColors : public RecordingTest, public testing::WithParamInterface<const char*> {};

INSTANTIATE_TEST_SUITE_P(Containers, RecordingOfColors,
                         testing::Values("colors.mp4", "colors.webm"));

TEST_P(RecordingOfColors, ShowsTheFrameAtTheRequestedTime) {
    const auto recording = opened(GetParam());
    ASSERT_NE(recording, nullptr);
    EXPECT_NEAR(recording->duration(), 10, 0.001);
    const auto colorAtTime = [&](double time) {
        const auto frame = recording->frame(time, 800);
        return frame ? only(colorAt(*frame, 30, 20)) : only(nothing);
    };
    EXPECT_THAT(colorAtTime(0), IsAbout(only(red), 6));
    EXPECT_THAT(colorAtTime(0.2), IsAbout(only(red), 6));
    EXPECT_THAT(colorAtTime(0.39), IsAbout(only(red), 6));
    EXPECT_THAT(colorAtTime(0.4), IsAbout(only(green), 6));
    EXPECT_THAT(colorAtTime(0.5), IsAbout(only(green), 6));
    EXPECT_THAT(colorAtTime(5), IsAbout(only(blue), 6));
    // The times are in any order, and some lie beyond the end.
    EXPECT_THAT(colorAtTime(0.5), IsAbout(only(green), 6));
    EXPECT_THAT(colorAtTime(100), IsAbout(only(blue), 6));
    EXPECT_THAT(colorAtTime(-1), IsAbout(only(red), 6));
}

TEST_F(RecordingTest, AnInvalidTimeMeansTheBeginning) {
    const auto recording = opened("colors.mp4");
    ASSERT_NE(recording, nullptr);
    const auto frame = recording->frame(std::numeric_limits<double>::quiet_NaN(), 800);
    ASSERT_NE(frame, nullptr);
    EXPECT_THAT(only(colorAt(*frame, 30, 20)), IsAbout(only(red), 6));
}

TEST_F(RecordingTest, AShortRecordingHasItsDuration) {
    const auto recording = opened("short.mov");
    ASSERT_NE(recording, nullptr);
    EXPECT_NEAR(recording->duration(), 0.4, 0.001);
    const auto frame = recording->frame(0.2, 800);
    ASSERT_NE(frame, nullptr);
    EXPECT_THAT(quarters(*frame), IsAbout(usualQuarters, 12));
}

TEST_F(RecordingTest, APortraitRecordingIsUpright) {
    const auto recording = opened("portrait.mov");
    ASSERT_NE(recording, nullptr);
    EXPECT_EQ(recording->videoTrackSize(), usual);
    const auto frame = recording->frame(0.5, 32);
    ASSERT_NE(frame, nullptr);
    EXPECT_EQ(frame->size, (Size{32, 24}));
    EXPECT_THAT(quarters(*frame), IsAbout(usualQuarters, 12));
}

TEST_F(RecordingTest, WidePixelsAreDrawnWide) {
    for (const auto* name : {"wide_pixels.mp4", "wide_pixels.mkv"}) {
        const auto recording = opened(name);
        ASSERT_NE(recording, nullptr) << name;
        EXPECT_EQ(recording->videoTrackSize(), (Size{128, 48})) << name;
        const auto frame = recording->frame(0.5, 800);
        ASSERT_NE(frame, nullptr) << name;
        EXPECT_EQ(frame->size, (Size{128, 48})) << name;
    }
}

TEST_F(RecordingTest, AFragmentedRecordingHasItsDuration) {
    const auto recording = opened("fragments.mp4");
    ASSERT_NE(recording, nullptr);
    EXPECT_NEAR(recording->duration(), 2, 0.05);
    EXPECT_NE(recording->frame(0.5, 800), nullptr);
}

TEST_F(RecordingTest, ALiveRecordingHasItsDuration) {
    const auto recording = opened("live.webm");
    ASSERT_NE(recording, nullptr);
    EXPECT_NEAR(recording->duration(), 2, 0.05);
    const auto frame = recording->frame(0.5, 800);
    ASSERT_NE(frame, nullptr);
    EXPECT_THAT(quarters(*frame), IsAbout(usualQuarters, 12));
}

TEST_F(RecordingTest, AnInterruptedRecordingHasTheDurationOfItsContents) {
    const auto recording = opened("killed.webm");
    ASSERT_NE(recording, nullptr);
    EXPECT_GT(recording->duration(), 1);
    EXPECT_LT(recording->duration(), 1.9);
    EXPECT_NE(recording->frame(0.5, 800), nullptr);
}

TEST_F(RecordingTest, ARecordingOfSoundHasADurationAndNoPicture) {
    for (const auto* name : {"sound.m4v", "sound.webm"}) {
        const auto recording = opened(name);
        ASSERT_NE(recording, nullptr) << name;
        EXPECT_NEAR(recording->duration(), 2, 0.05) << name;
        EXPECT_EQ(recording->videoTrackSize(), std::nullopt) << name;
        EXPECT_EQ(recording->frame(0.5, 800), nullptr) << name;
    }
}

class RecordingOfAnotherCodec : public RecordingTest,
                                public testing::WithParamInterface<const char*> {};

INSTANTIATE_TEST_SUITE_P(Codecs, RecordingOfAnotherCodec,
                         testing::Values("prores.mov", "vp8.webm", "vp9.webm", "translucent.webm",
                                         "av1.webm", "h264.mkv"));

TEST_P(RecordingOfAnotherCodec, ShowsItsPicture) {
    const auto recording = opened(GetParam());
    ASSERT_NE(recording, nullptr);
    EXPECT_EQ(recording->videoTrackSize(), usual);
    const auto frame = recording->frame(0.25, 800);
    ASSERT_NE(frame, nullptr);
    EXPECT_THAT(quarters(*frame), IsAbout(usualQuarters, 12));
}

TEST_F(RecordingTest, NoSideOfAFrameExceedsTheMaximum) {
    const auto recording = opened("ten_seconds.mp4");
    ASSERT_NE(recording, nullptr);
    for (const double most : {1.0, 10.0, 40.5, 64.0}) {
        const auto frame = recording->frame(0.5, most);
        ASSERT_NE(frame, nullptr);
        EXPECT_LE(std::max(frame->size.width, frame->size.height), most);
    }
}

}  // namespace
}  // namespace vantle
