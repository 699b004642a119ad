#include <gtest/gtest.h>

#include <filesystem>

#include "TemporaryFolder.h"
#include "TextFile.h"
#include "fakes/FakeMediaLoader.h"
#include "samples/Samples.h"

namespace vantle {
namespace {

using samples::file;

constexpr Size usual = samples::usual;
constexpr Size denseInPixels{2940, 1912};
constexpr Size denseInPoints{1470, 956};

struct FakeMedia {
    FakeMedia() {
        loader.addImage(file("rgb.png"), usual, usual);
        loader.addImage(file("dense.png"), denseInPixels, denseInPoints);
        loader.addImage(file("quarters.pdf"), Size{}, usual);
        loader.addDamagedImage(file("flipped.png"), usual, usual);
        loader.addRecording(file("ten_seconds.mp4"), 10, usual, usual);
        loader.addRecording(file("sound.m4v"), 2, std::nullopt, std::nullopt);
    }
    fakes::FakeMediaLoader loader;
};

struct DecodedMedia {
    samples::Loader loader;
};

template <typename Media>
class MediaLoaderContract : public testing::Test {
protected:
    Media media;
    MediaLoader& loader = media.loader;
};

using Medias = testing::Types<FakeMedia, DecodedMedia>;
TYPED_TEST_SUITE(MediaLoaderContract, Medias);

TYPED_TEST(MediaLoaderContract, WhatIsNotThereCannotBeOpened) {
    EXPECT_EQ(this->loader.openImage(file("nothing.png")), nullptr);
    EXPECT_EQ(this->loader.openRecording(file("nothing.mov")), nullptr);
}

TYPED_TEST(MediaLoaderContract, AnImageIsNoRecording) {
    EXPECT_EQ(this->loader.openRecording(file("rgb.png")), nullptr);
}

TYPED_TEST(MediaLoaderContract, ARecordingIsNoImage) {
    EXPECT_EQ(this->loader.openImage(file("ten_seconds.mp4")), nullptr);
}

TYPED_TEST(MediaLoaderContract, AnImageTellsItsSizesInPixelsAndInPoints) {
    const auto plain = this->loader.openImage(file("rgb.png"));
    ASSERT_NE(plain, nullptr);
    EXPECT_EQ(plain->pixelSize(), usual);
    EXPECT_EQ(plain->pointSize(), usual);

    const auto dense = this->loader.openImage(file("dense.png"));
    ASSERT_NE(dense, nullptr);
    EXPECT_EQ(dense->pixelSize(), denseInPixels);
    EXPECT_EQ(dense->pointSize(), denseInPoints);
}

TYPED_TEST(MediaLoaderContract, AVectorImageHasPointsButNoPixels) {
    const auto image = this->loader.openImage(file("quarters.pdf"));
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(image->pixelSize(), Size{});
    EXPECT_EQ(image->pointSize(), usual);
}

TYPED_TEST(MediaLoaderContract, ADrawingHasTheSizeAskedForAndAllItsPixels) {
    const auto image = this->loader.openImage(file("dense.png"));
    ASSERT_NE(image, nullptr);
    const auto drawn = image->draw({320, 208});
    ASSERT_NE(drawn, nullptr);
    EXPECT_EQ(drawn->size, (Size{320, 208}));
    EXPECT_EQ(drawn->pixelsWide, 320);
    EXPECT_EQ(drawn->pixelsHigh, 208);
    EXPECT_EQ(drawn->rgba.size(), 320U * 208U * 4U);
}

TYPED_TEST(MediaLoaderContract, AFileCanBeDrawnAgainAtAnotherSize) {
    const auto image = this->loader.openImage(file("rgb.png"));
    ASSERT_NE(image, nullptr);
    for (const Size size : {Size{32, 24}, Size{64, 48}, Size{16, 12}}) {
        const auto drawn = image->draw(size);
        ASSERT_NE(drawn, nullptr);
        EXPECT_EQ(drawn->pixelsWide, static_cast<int>(size.width));
    }
}

TYPED_TEST(MediaLoaderContract, FilesCanBeOpenAtOnceAndDrawnInAnyOrder) {
    const auto first = this->loader.openImage(file("rgb.png"));
    const auto recording = this->loader.openRecording(file("ten_seconds.mp4"));
    const auto second = this->loader.openImage(file("dense.png"));
    ASSERT_NE(first, nullptr);
    ASSERT_NE(recording, nullptr);
    ASSERT_NE(second, nullptr);
    EXPECT_NE(recording->frame(0.5, 800), nullptr);
    EXPECT_NE(first->draw({32, 24}), nullptr);
    EXPECT_NE(second->draw({32, 24}), nullptr);
    EXPECT_NE(first->draw({64, 48}), nullptr);
}

TYPED_TEST(MediaLoaderContract, ADamagedImageIsNotDrawn) {
    const auto image = this->loader.openImage(file("flipped.png"));
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(image->draw(usual), nullptr);
}

TYPED_TEST(MediaLoaderContract, AHeldImageIsTheSameWhenItIsAskedFor) {
    EXPECT_EQ(this->loader.holdImage(file("nothing.png")), nullptr);
    const auto image = this->loader.holdImage(file("dense.png"));
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(image->pointSize(), denseInPoints);
    EXPECT_EQ(image->pixelSize(), denseInPixels);
    EXPECT_NE(image->draw({32, 24}), nullptr);
}

TEST(ConfinedMediaLoaderTest, AFileThatIsHeldStaysWhatItWasAndIsOpenedLate) {
    const TemporaryFolder folder;
    const Url copy = folder / "a.png";
    std::filesystem::copy_file(file("rgb.png").path(), copy.path());
    samples::Loader loader;
    const auto image = loader.holdImage(copy);
    const auto text = folder / "text.png";
    writeText(text, "no image");
    const auto none = loader.holdImage(text);
    std::filesystem::remove(copy.path());
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(image->pixelSize(), usual);
    EXPECT_NE(image->draw(usual), nullptr);
    ASSERT_NE(none, nullptr) << "nobody has looked into it";
    EXPECT_EQ(none->pixelSize(), std::nullopt);
    EXPECT_EQ(none->draw(usual), nullptr);
}

TYPED_TEST(MediaLoaderContract, ARecordingTellsItsDurationAndItsTracksSize) {
    const auto recording = this->loader.openRecording(file("ten_seconds.mp4"));
    ASSERT_NE(recording, nullptr);
    EXPECT_NEAR(recording->duration(), 10, 0.001);
    EXPECT_EQ(recording->videoTrackSize(), usual);
    const auto frame = recording->frame(0.5, 800);
    ASSERT_NE(frame, nullptr);
    EXPECT_EQ(frame->size, usual);
}

TYPED_TEST(MediaLoaderContract, ARecordingOfSoundHasNoTrackAndNoFrame) {
    const auto recording = this->loader.openRecording(file("sound.m4v"));
    ASSERT_NE(recording, nullptr);
    EXPECT_NEAR(recording->duration(), 2, 0.05);
    EXPECT_EQ(recording->videoTrackSize(), std::nullopt);
    EXPECT_EQ(recording->frame(0.5, 800), nullptr);
}

}  // namespace
}  // namespace vantle
