#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "fakes/FakeMediaLoader.h"

namespace vantle {

/// The sizes of the sample files with these names. Each kind of media has such files and a loader.
struct SampleMedia {
    static constexpr Size usual{64, 48};
    static constexpr Size denseInPixels{2940, 1912};
    static constexpr Size denseInPoints{1470, 956};
};

struct FakeMedia : SampleMedia {
    FakeMedia() {
        loader.addImage(file("rgb.png"), usual, usual);
        loader.addImage(file("dense.png"), denseInPixels, denseInPoints);
        loader.addImage(file("quarters.pdf"), Size{}, usual);
        loader.addDocument(file("two_pages.pdf"), {usual, {2 * usual.width, usual.height}});
        loader.addDamagedImage(file("flipped.png"), usual, usual);
        loader.addRecording(file("ten_seconds.mp4"), 10, usual, usual);
        loader.addRecording(file("sound.m4v"), 2, std::nullopt, std::nullopt);
    }
    static Url file(const std::string& name) { return Url::file("/samples/" + name); }

    fakes::FakeMediaLoader loader;
};

template <typename Media>
class MediaLoaderContract : public testing::Test {
protected:
    static Url file(const std::string& name) { return Media::file(name); }

    static constexpr Size usual = SampleMedia::usual;
    static constexpr Size denseInPixels = SampleMedia::denseInPixels;
    static constexpr Size denseInPoints = SampleMedia::denseInPoints;
    Media media;
    MediaLoader& loader = media.loader;
};

TYPED_TEST_SUITE_P(MediaLoaderContract);

TYPED_TEST_P(MediaLoaderContract, AMissingFileCannotBeOpened) {
    EXPECT_EQ(this->loader.openImage(this->file("nothing.png")), nullptr);
    EXPECT_EQ(this->loader.openRecording(this->file("nothing.mov")), nullptr);
}

TYPED_TEST_P(MediaLoaderContract, AnImageIsNoRecording) {
    EXPECT_EQ(this->loader.openRecording(this->file("rgb.png")), nullptr);
}

TYPED_TEST_P(MediaLoaderContract, ARecordingIsNoImage) {
    EXPECT_EQ(this->loader.openImage(this->file("ten_seconds.mp4")), nullptr);
}

TYPED_TEST_P(MediaLoaderContract, AnImageHasSizesInPixelsAndInPoints) {
    const auto plain = this->loader.openImage(this->file("rgb.png"));
    ASSERT_NE(plain, nullptr);
    EXPECT_EQ(plain->pixelSize(), this->usual);
    EXPECT_EQ(plain->pointSize(), this->usual);

    const auto dense = this->loader.openImage(this->file("dense.png"));
    ASSERT_NE(dense, nullptr);
    EXPECT_EQ(dense->pixelSize(), this->denseInPixels);
    EXPECT_EQ(dense->pointSize(), this->denseInPoints);
}

TYPED_TEST_P(MediaLoaderContract, AVectorImageHasPointsButNoPixels) {
    const auto image = this->loader.openImage(this->file("quarters.pdf"));
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(image->pixelSize(), Size{});
    EXPECT_EQ(image->pointSize(), this->usual);
}

TYPED_TEST_P(MediaLoaderContract, ADocumentHasPages) {
    const auto document = this->loader.openImage(this->file("two_pages.pdf"));
    ASSERT_NE(document, nullptr);
    EXPECT_EQ(document->pageCount(), 2);
    EXPECT_EQ(document->pointSize(), this->usual);
    ASSERT_TRUE(document->selectPage(1));
    const Size wide{2 * this->usual.width, this->usual.height};
    EXPECT_EQ(document->pointSize(), wide);
    EXPECT_NE(document->draw(wide), nullptr);
}

TYPED_TEST_P(MediaLoaderContract, APageThatDoesNotExistCannotBeSelected) {
    const auto document = this->loader.openImage(this->file("two_pages.pdf"));
    ASSERT_NE(document, nullptr);
    for (const int page : {-1, 2, 1'000'000'000}) EXPECT_FALSE(document->selectPage(page)) << page;
    EXPECT_EQ(document->pointSize(), this->usual);
    EXPECT_NE(document->draw(this->usual), nullptr);
}

TYPED_TEST_P(MediaLoaderContract, AnImageIsItsOnlyPage) {
    const auto image = this->loader.openImage(this->file("rgb.png"));
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(image->pageCount(), 1);
    EXPECT_TRUE(image->selectPage(0));
    EXPECT_FALSE(image->selectPage(1));
}

TYPED_TEST_P(MediaLoaderContract, ADrawingHasTheRequestedSizeAndAllItsPixels) {
    const auto image = this->loader.openImage(this->file("dense.png"));
    ASSERT_NE(image, nullptr);
    const auto drawn = image->draw({320, 208});
    ASSERT_NE(drawn, nullptr);
    EXPECT_EQ(drawn->size, (Size{320, 208}));
    EXPECT_EQ(drawn->pixelsWide, 320);
    EXPECT_EQ(drawn->pixelsHigh, 208);
    EXPECT_EQ(drawn->rgba.size(), 320U * 208U * 4U);
}

TYPED_TEST_P(MediaLoaderContract, AFileCanBeDrawnAgainAtAnotherSize) {
    const auto image = this->loader.openImage(this->file("rgb.png"));
    ASSERT_NE(image, nullptr);
    for (const Size size : {Size{32, 24}, Size{64, 48}, Size{16, 12}}) {
        const auto drawn = image->draw(size);
        ASSERT_NE(drawn, nullptr);
        EXPECT_EQ(drawn->pixelsWide, static_cast<int>(size.width));
    }
}

TYPED_TEST_P(MediaLoaderContract, FilesCanBeOpenAtOnceAndDrawnInAnyOrder) {
    const auto first = this->loader.openImage(this->file("rgb.png"));
    const auto recording = this->loader.openRecording(this->file("ten_seconds.mp4"));
    const auto second = this->loader.openImage(this->file("dense.png"));
    ASSERT_NE(first, nullptr);
    ASSERT_NE(recording, nullptr);
    ASSERT_NE(second, nullptr);
    EXPECT_NE(recording->frame(0.5, 800), nullptr);
    EXPECT_NE(first->draw({32, 24}), nullptr);
    EXPECT_NE(second->draw({32, 24}), nullptr);
    EXPECT_NE(first->draw({64, 48}), nullptr);
}

TYPED_TEST_P(MediaLoaderContract, ADamagedImageIsNotDrawn) {
    const auto image = this->loader.openImage(this->file("flipped.png"));
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(image->draw(this->usual), nullptr);
}

TYPED_TEST_P(MediaLoaderContract, AHeldImageStaysTheSame) {
    EXPECT_EQ(this->loader.holdImage(this->file("nothing.png")), nullptr);
    const auto image = this->loader.holdImage(this->file("dense.png"));
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(image->pointSize(), this->denseInPoints);
    EXPECT_EQ(image->pixelSize(), this->denseInPixels);
    EXPECT_NE(image->draw({32, 24}), nullptr);
}

TYPED_TEST_P(MediaLoaderContract, ARecordingHasADurationAndTheSizeOfItsTrack) {
    const auto recording = this->loader.openRecording(this->file("ten_seconds.mp4"));
    ASSERT_NE(recording, nullptr);
    EXPECT_NEAR(recording->duration(), 10, 0.001);
    EXPECT_EQ(recording->videoTrackSize(), this->usual);
    const auto frame = recording->frame(0.5, 800);
    ASSERT_NE(frame, nullptr);
    EXPECT_EQ(frame->size, this->usual);
}

TYPED_TEST_P(MediaLoaderContract, ARecordingOfSoundHasNoTrackAndNoFrame) {
    const auto recording = this->loader.openRecording(this->file("sound.m4v"));
    ASSERT_NE(recording, nullptr);
    EXPECT_NEAR(recording->duration(), 2, 0.05);
    EXPECT_EQ(recording->videoTrackSize(), std::nullopt);
    EXPECT_EQ(recording->frame(0.5, 800), nullptr);
}

REGISTER_TYPED_TEST_SUITE_P(MediaLoaderContract, AMissingFileCannotBeOpened, AnImageIsNoRecording,
                            ARecordingIsNoImage, AnImageHasSizesInPixelsAndInPoints,
                            AVectorImageHasPointsButNoPixels, ADocumentHasPages,
                            APageThatDoesNotExistCannotBeSelected, AnImageIsItsOnlyPage,
                            ADrawingHasTheRequestedSizeAndAllItsPixels,
                            AFileCanBeDrawnAgainAtAnotherSize,
                            FilesCanBeOpenAtOnceAndDrawnInAnyOrder, ADamagedImageIsNotDrawn,
                            AHeldImageStaysTheSame, ARecordingHasADurationAndTheSizeOfItsTrack,
                            ARecordingOfSoundHasNoTrackAndNoFrame);

}  // namespace vantle
