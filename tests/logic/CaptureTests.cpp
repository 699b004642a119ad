#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <vector>

#include "capture/Capture.h"
#include "capture/SmallPicture.h"
#include "fakes/FakeMediaLoader.h"

namespace vantle {
namespace {

using testing::ElementsAre;

const Url shot = Url::file("/shots/Shot.png");
const Url clip = Url::file("/shots/clip.mov");

class CaptureTest : public testing::Test {
protected:
    std::shared_ptr<Capture> loaded(const Url& url) {
        auto capture = Capture::create(url, Date{});
        capture->loadThumbnail(media);
        return capture;
    }

    fakes::FakeMediaLoader media;
};

TEST(CaptureKindOfFile, DependsOnTheWholeExtensionInAnyCase) {
    const auto kind = [](const char* name) {
        return Capture::kind(Url::file("/shots").appending(name));
    };
    EXPECT_EQ(kind("Shot.PNG"), CaptureKind::image);
    EXPECT_EQ(kind("clip.MOV"), CaptureKind::video);
    EXPECT_EQ(kind("notes.txt"), std::nullopt);
    EXPECT_EQ(kind("Shot"), std::nullopt);
    EXPECT_EQ(kind("Shot.png.download"), std::nullopt);
    EXPECT_EQ(kind("Shot.png~"), std::nullopt);
    for (const char* image :
         {"a.png", "a.jpg", "a.jpeg", "a.heic", "a.tiff", "a.tif", "a.gif", "a.pdf", "a.b.Jpeg"})
        EXPECT_EQ(kind(image), CaptureKind::image) << image;
    for (const char* video : {"a.mov", "a.mp4", "a.m4v"})
        EXPECT_EQ(kind(video), CaptureKind::video) << video;
}

TEST(CaptureKindOfFile, KnowsTheExtensionsThatEverySystemsToolsWrite) {
    EXPECT_THAT(Capture::imageExtensions,
                ElementsAre("png", "jpg", "jpeg", "heic", "tiff", "tif", "gif", "pdf"));
    EXPECT_THAT(Capture::videoExtensions, ElementsAre("mov", "mp4", "m4v"));
}

constexpr std::array<std::string_view, 1> moreImages{"webp"};
constexpr std::array<std::string_view, 1> moreVideos{"webm"};
constexpr CaptureExtensions more{moreImages, moreVideos};

TEST(CaptureKindOfFile, CountsTheExtensionsThatTheSystemAdds) {
    const auto kind = [](const char* name) {
        return Capture::kind(Url::file("/shots").appending(name), more);
    };
    EXPECT_EQ(kind("a.png"), CaptureKind::image);
    EXPECT_EQ(kind("a.mov"), CaptureKind::video);
    EXPECT_EQ(kind("a.WebP"), CaptureKind::image);
    EXPECT_EQ(kind("a.webm"), CaptureKind::video);
    EXPECT_EQ(kind("a.webm.part"), std::nullopt);
    EXPECT_EQ(Capture::kind(Url::file("/shots/a.webp")), std::nullopt);
    EXPECT_EQ(Capture::kind(Url::file("/shots/a.webm")), std::nullopt);
}

TEST_F(CaptureTest, IsMadeOfAFileWithAnExtensionThatTheSystemAdds) {
    EXPECT_EQ(Capture::create(Url::file("/shots/a.webm"), Date{}), nullptr);
    const auto capture = Capture::create(Url::file("/shots/a.webm"), Date{}, more);
    ASSERT_NE(capture, nullptr);
    EXPECT_EQ(capture->kind(), CaptureKind::video);
}

TEST_F(CaptureTest, CannotBeMadeOfAnotherFile) {
    EXPECT_EQ(Capture::create(Url::file("/shots/notes.txt"), Date{}), nullptr);
}

TEST_F(CaptureTest, IsEmptyUntilLoaded) {
    const auto capture = Capture::create(shot, Date{});
    EXPECT_EQ(capture->thumbnail(), nullptr);
    EXPECT_EQ(capture->pixelSize(), Size{});
    EXPECT_EQ(capture->duration(), 0);
    EXPECT_EQ(capture->fileName(), "Shot.png");
}

TEST_F(CaptureTest, ALargeImageGetsAThumbnailWhoseLongerSideIsTheMaximum) {
    media.addImage(shot, Size{4000, 3000}, {4000, 3000});
    const auto capture = loaded(shot);
    EXPECT_EQ(capture->thumbnail()->size, (Size{800, 600}));
    EXPECT_EQ(capture->pixelSize(), (Size{4000, 3000}));
}

TEST_F(CaptureTest, AnImageThatFitsKeepsItselfAsThumbnail) {
    for (const Size size : {Size{640, 480}, Size{799, 600}}) {
        media.addImage(shot, size, size);
        EXPECT_EQ(loaded(shot)->thumbnail()->size, size);
    }
}

TEST_F(CaptureTest, AnImageOfExactlyTheMaximumKeepsItself) {
    media.addImage(shot, Size{800, 800}, {800, 800});
    EXPECT_EQ(loaded(shot)->thumbnail()->size, (Size{800, 800}));
}

TEST_F(CaptureTest, TheThumbnailIsMeasuredInPointsThePixelSizeInPixels) {
    media.addImage(shot, Size{2940, 1912}, {1470, 956});
    const auto capture = loaded(shot);
    EXPECT_EQ(capture->pixelSize(), (Size{2940, 1912}));
    EXPECT_DOUBLE_EQ(capture->thumbnail()->size.width, 800);
    EXPECT_DOUBLE_EQ(capture->thumbnail()->size.height, 956 * 800.0 / 1470);
}

TEST_F(CaptureTest, ACopyWithASmallThumbnailIsTheSameCaptureOtherwise) {
    media.addImage(shot, Size{4000, 2000}, {4000, 2000});
    const auto capture = loaded(shot);
    const auto small = capture->withSmallThumbnail(108, 72);
    EXPECT_EQ(small->thumbnail()->pixelsWide, 108);
    EXPECT_EQ(small->thumbnail()->pixelsHigh, 54);
    EXPECT_EQ(small->thumbnail()->size, capture->thumbnail()->size);
    EXPECT_EQ(small->id(), capture->id());
    EXPECT_EQ(small->url(), capture->url());
    EXPECT_EQ(small->pixelSize(), capture->pixelSize());
    EXPECT_EQ(capture->thumbnail()->pixelsWide, 800);
}

TEST_F(CaptureTest, WithoutAThumbnailThereIsNoSmallOne) {
    EXPECT_EQ(loaded(shot)->withSmallThumbnail(108, 72)->thumbnail(), nullptr);
}

ImagePointer grey(int width, int height, std::vector<std::uint8_t> values) {
    auto image = std::make_shared<Image>();
    image->pixelsWide = width;
    image->pixelsHigh = height;
    image->size = {double(width), double(height)};
    for (const auto value : values) image->rgba.insert(image->rgba.end(), {value, 1, 2, 255});
    return image;
}

TEST(SmallPicture, HasTheMeanOfThePixelsThatEachPixelReplaces) {
    const auto small = smallPicture(grey(4, 2, {10, 20, 0, 0, 30, 41, 0, 255}), 2, 2);
    EXPECT_EQ(small->pixelsWide, 2);
    EXPECT_EQ(small->pixelsHigh, 1);
    EXPECT_THAT(small->rgba, ElementsAre(25, 1, 2, 255, 64, 1, 2, 255));
}

TEST(SmallPicture, UsesEveryPixelIfTheSizesDoNotDivide) {
    const auto small = smallPicture(grey(5, 1, {0, 100, 50, 60, 70}), 2, 9);
    EXPECT_THAT(small->rgba, ElementsAre(50, 1, 2, 255, 60, 1, 2, 255));
}

TEST(SmallPicture, ALineStaysALine) {
    const auto small = smallPicture(grey(6, 1, {1, 1, 1, 4, 4, 4}), 2, 2);
    EXPECT_EQ(small->pixelsHigh, 1);
    EXPECT_THAT(small->rgba, ElementsAre(1, 1, 2, 255, 4, 1, 2, 255));
}

TEST(SmallPicture, IsTheImageItselfIfThatFits) {
    const auto image = grey(2, 1, {1, 2});
    EXPECT_EQ(smallPicture(image, 2, 1), image);
}

TEST_F(CaptureTest, AVectorImageWithoutPixelsGetsItsPointSize) {
    media.addImage(shot, Size{0, 0}, {595, 842});
    EXPECT_EQ(loaded(shot)->pixelSize(), (Size{595, 842}));
}

TEST_F(CaptureTest, ASingleZeroOfThePixelSizeIsKept) {
    media.addImage(shot, Size{0, 700}, {595, 842});
    EXPECT_EQ(loaded(shot)->pixelSize(), (Size{0, 700}));
}

TEST_F(CaptureTest, AnImageThatCannotBeOpenedLeavesEverythingAbsent) {
    const auto capture = loaded(shot);
    EXPECT_EQ(capture->thumbnail(), nullptr);
    EXPECT_EQ(capture->pixelSize(), Size{});
}

TEST_F(CaptureTest, AnImageThatTurnsOutToBeDamagedLeavesEverythingAbsent) {
    media.addDamagedImage(shot, Size{640, 480}, {640, 480});
    const auto capture = loaded(shot);
    EXPECT_EQ(capture->thumbnail(), nullptr);
    EXPECT_EQ(capture->pixelSize(), Size{});
}

TEST_F(CaptureTest, AShortVideoTakesItsPosterFrameInTheMiddle) {
    media.addRecording(clip, 0.4, Size{640, 480}, Size{640, 480});
    loaded(clip);
    EXPECT_THAT(media.frameTimes, ElementsAre(0.2));
}

TEST_F(CaptureTest, ALongVideoTakesItsPosterFrameAtHalfASecond) {
    media.addRecording(clip, 10, Size{640, 480}, Size{640, 480});
    EXPECT_EQ(loaded(clip)->duration(), 10);
    EXPECT_THAT(media.frameTimes, ElementsAre(0.5));
}

TEST_F(CaptureTest, AVideoOfUnknownDurationFollowsTheRuleLiterally) {
    media.addRecording(clip, std::numeric_limits<double>::quiet_NaN(), Size{640, 480},
                       Size{640, 480});
    const auto capture = loaded(clip);
    EXPECT_TRUE(std::isnan(capture->duration()));
    ASSERT_EQ(media.frameTimes.size(), 1u);
    EXPECT_NE(capture->thumbnail(), nullptr);
}

TEST_F(CaptureTest, AnUprightRecordingReportsItsTrackSize) {
    media.addRecording(clip, 5, Size{1080, 1920}, Size{450, 800});
    const auto capture = loaded(clip);
    EXPECT_EQ(capture->pixelSize(), (Size{1080, 1920}));
    EXPECT_EQ(capture->thumbnail()->size, (Size{450, 800}));
}

TEST_F(CaptureTest, ARecordingWithoutVideoTrackReportsItsFrame) {
    media.addRecording(clip, 5, std::nullopt, Size{800, 450});
    EXPECT_EQ(loaded(clip)->pixelSize(), (Size{800, 450}));
}

TEST_F(CaptureTest, ARecordingWithoutFrameKeepsItsDurationOnly) {
    media.addRecording(clip, 5, Size{640, 480}, std::nullopt);
    const auto capture = loaded(clip);
    EXPECT_EQ(capture->duration(), 5);
    EXPECT_EQ(capture->thumbnail(), nullptr);
    EXPECT_EQ(capture->pixelSize(), Size{});
}

TEST_F(CaptureTest, ARenamedOneKeepsAllButItsAddress) {
    media.addRecording(clip, 5, Size{1080, 1920}, Size{450, 800});
    const auto capture = Capture::create(clip, Date{std::chrono::seconds(7)});
    capture->loadThumbnail(media);
    const auto renamed = capture->renamed(Url::file("/shots/better name.mov"));
    EXPECT_EQ(renamed->fileName(), "better name.mov");
    EXPECT_EQ(renamed->id(), capture->id());
    EXPECT_EQ(renamed->date(), capture->date());
    EXPECT_EQ(renamed->kind(), capture->kind());
    EXPECT_EQ(renamed->thumbnail(), capture->thumbnail());
    EXPECT_EQ(renamed->pixelSize(), capture->pixelSize());
    EXPECT_EQ(renamed->duration(), 5);
    EXPECT_EQ(capture->fileName(), "clip.mov");
}

TEST_F(CaptureTest, TwoOfTheSameFileAreEqualAlthoughTheirIdentifiersDiffer) {
    const auto first = Capture::create(shot, Date{});
    const auto second = Capture::create(shot, Date{});
    EXPECT_EQ(*first, *second);
    EXPECT_NE(first->id(), second->id());
    EXPECT_FALSE(*first == *Capture::create(clip, Date{}));
}

}  // namespace
}  // namespace vantle
