#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QTemporaryDir>
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <string>
#include <thread>

#include "fakes/FakeMediaLoader.h"
#include "platform/qt/QtMediaLoader.h"

namespace vantle {
namespace {

Url sample(const std::string& name) {
    return Url::file(std::string(VANTLE_SAMPLES) + "/" + name);
}

constexpr Size quarters{64, 48};
constexpr Size denseInPixels{2940, 1912};
constexpr Size denseInPoints{1470, 956};

struct FakeMedia {
    FakeMedia() {
        loader.addImage(sample("rgb.png"), quarters, quarters);
        loader.addImage(sample("dense.png"), denseInPixels, denseInPoints);
    }
    fakes::FakeMediaLoader loader;
};

struct QtMedia {
    QtMediaLoader loader{[] { return 1.0; }};
};

template <typename Media>
class MediaLoaderContract : public testing::Test {
protected:
    Media media;
    MediaLoader& loader = media.loader;
};

using Medias = testing::Types<FakeMedia, QtMedia>;
TYPED_TEST_SUITE(MediaLoaderContract, Medias);

TYPED_TEST(MediaLoaderContract, WhatIsNotThereCannotBeOpened) {
    EXPECT_EQ(this->loader.openImage(sample("nothing.png")), nullptr);
    EXPECT_EQ(this->loader.openRecording(sample("nothing.mov")), nullptr);
}

TYPED_TEST(MediaLoaderContract, AnImageIsNoRecording) {
    EXPECT_EQ(this->loader.openRecording(sample("rgb.png")), nullptr);
}

TYPED_TEST(MediaLoaderContract, AnImageTellsItsSizesInPixelsAndInPoints) {
    const auto plain = this->loader.openImage(sample("rgb.png"));
    ASSERT_NE(plain, nullptr);
    EXPECT_EQ(plain->pixelSize(), quarters);
    EXPECT_EQ(plain->pointSize(), quarters);

    const auto dense = this->loader.openImage(sample("dense.png"));
    ASSERT_NE(dense, nullptr);
    EXPECT_EQ(dense->pixelSize(), denseInPixels);
    EXPECT_EQ(dense->pointSize(), denseInPoints);
}

TYPED_TEST(MediaLoaderContract, ADrawingHasTheSizeAskedForAndAllItsPixels) {
    const auto file = this->loader.openImage(sample("dense.png"));
    ASSERT_NE(file, nullptr);
    const auto drawn = file->draw({320, 208});
    ASSERT_NE(drawn, nullptr);
    EXPECT_EQ(drawn->size, (Size{320, 208}));
    EXPECT_EQ(drawn->pixelsWide, 320);
    EXPECT_EQ(drawn->pixelsHigh, 208);
    EXPECT_EQ(drawn->rgba.size(), 320U * 208U * 4U);
}

TYPED_TEST(MediaLoaderContract, AFileCanBeDrawnAgainAtAnotherSize) {
    const auto file = this->loader.openImage(sample("rgb.png"));
    ASSERT_NE(file, nullptr);
    for (const Size size : {Size{32, 24}, Size{64, 48}, Size{16, 12}}) {
        const auto drawn = file->draw(size);
        ASSERT_NE(drawn, nullptr);
        EXPECT_EQ(drawn->pixelsWide, static_cast<int>(size.width));
    }
}

using Color = std::array<int, 4>;
constexpr Color red{255, 0, 0, 255};
constexpr Color green{0, 255, 0, 255};
constexpr Color blue{0, 0, 255, 255};
constexpr Color yellow{255, 255, 0, 255};

Color colorAt(const Image& image, int x, int y) {
    const auto offset = static_cast<std::size_t>((y * image.pixelsWide + x) * 4);
    Color color{};
    std::copy_n(image.rgba.begin() + static_cast<std::ptrdiff_t>(offset), 4, color.begin());
    return color;
}

/// In the middle of each quarter, from the top left.
std::array<Color, 4> colors(const Image& image) {
    const int left = image.pixelsWide / 4;
    const int top = image.pixelsHigh / 4;
    return {colorAt(image, left, top), colorAt(image, 3 * left, top), colorAt(image, left, 3 * top),
            colorAt(image, 3 * left, 3 * top)};
}

/// Within what a lossy format may lose.
MATCHER_P(IsAbout, expected, "") {
    for (std::size_t i = 0; i < expected.size(); ++i)
        for (std::size_t part = 0; part < 4; ++part)
            if (std::abs(arg[i][part] - expected[i][part]) > 6) return false;
    return true;
}

ImagePointer drawn(const std::string& name, Size size, double pixelsPerPoint = 1) {
    QtMediaLoader loader([pixelsPerPoint] { return pixelsPerPoint; });
    const auto file = loader.openImage(sample(name));
    return file ? file->draw(size) : nullptr;
}

class HonestImage : public testing::TestWithParam<const char*> {};

TEST_P(HonestImage, ShowsItsFourQuarters) {
    const std::array expected{red, green, blue, yellow};
    for (const Size size : {quarters, Size{32, 24}, Size{20, 15}}) {
        const auto image = drawn(GetParam(), size);
        ASSERT_NE(image, nullptr);
        EXPECT_EQ(image->pixelsWide, static_cast<int>(size.width));
        EXPECT_EQ(image->pixelsHigh, static_cast<int>(size.height));
        EXPECT_THAT(colors(*image), IsAbout(expected));
    }
}

INSTANTIATE_TEST_SUITE_P(QtMediaLoader, HonestImage,
                         testing::Values("rgb.png", "palette.png", "deep.png", "interlaced.png",
                                         "tall_dots.png", "texts.png", "baseline.jpg",
                                         "progressive.jpg", "rotated.jpg", "cmyk.jpg", "dense.jpg",
                                         "large.jpg", "really_jpeg.png", "animated.gif"));

TEST(QtMediaLoaderTest, TranslucentColorsArePremultiplied) {
    const Color halfRed{128, 0, 0, 128};
    const Color halfGreen{0, 128, 0, 128};
    const Color halfBlue{0, 0, 128, 128};
    const Color halfYellow{128, 128, 0, 128};
    for (const Size size : {quarters, Size{32, 24}}) {
        const auto image = drawn("translucent.png", size);
        ASSERT_NE(image, nullptr);
        EXPECT_EQ(colors(*image), (std::array{halfRed, halfGreen, halfBlue, halfYellow}));
    }
}

TEST(QtMediaLoaderTest, GrayIsGray) {
    const auto image = drawn("gray.jpg", quarters);
    ASSERT_NE(image, nullptr);
    const Color color = colorAt(*image, 5, 5);
    EXPECT_EQ(color[0], color[1]);
    EXPECT_EQ(color[1], color[2]);
    EXPECT_EQ(color[3], 255);
}

TEST(QtMediaLoaderTest, ThereAreNeverMorePixelsThanInTheFile) {
    const auto image = drawn("rgb.png", {640, 480}, 2);
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(image->pixelsWide, 64);
    EXPECT_EQ(image->pixelsHigh, 48);
    EXPECT_EQ(image->size, (Size{640, 480}));
}

TEST(QtMediaLoaderTest, ADenseScreenGetsMorePixels) {
    for (const auto* name : {"dense.png", "large.jpg"}) {
        const auto image = drawn(name, {320, 208}, 1.5);
        ASSERT_NE(image, nullptr);
        EXPECT_EQ(image->pixelsWide, 480);
        EXPECT_EQ(image->pixelsHigh, 312);
        EXPECT_EQ(image->size, (Size{320, 208}));
    }
}

TEST(QtMediaLoaderTest, ADrawingOfNothingHasAPixel) {
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
    const auto file = QtMediaLoader().openImage(sample(GetParam().name));
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(file->pixelSize(), GetParam().pixels);
    EXPECT_NEAR(file->pointSize().width, GetParam().points.width, 1e-9);
    EXPECT_NEAR(file->pointSize().height, GetParam().points.height, 1e-9);
}

INSTANTIATE_TEST_SUITE_P(
    QtMediaLoader, SizeInPoints,
    testing::Values(SizedSample{"rgb.png", quarters, quarters},
                    SizedSample{"dense.png", denseInPixels, denseInPoints},
                    SizedSample{"tall_dots.png", quarters, {32, 48}},
                    SizedSample{"no_dots.png", quarters, quarters},
                    SizedSample{"baseline.jpg", quarters, quarters},
                    SizedSample{"dense.jpg", quarters, {32, 24}},
                    SizedSample{"centimetres.jpg", quarters, {64 * 72.0 / 71, 48 * 72.0 / 71}},
                    // Stored on its side, with twice the dots across as it is stored.
                    SizedSample{"rotated.jpg", quarters, {64, 24}},
                    SizedSample{"animated.gif", quarters, quarters}));

class DamagedImage : public testing::TestWithParam<const char*> {};

TEST_P(DamagedImage, GivesNoPicture) {
    EXPECT_EQ(drawn(GetParam(), quarters), nullptr);
}

INSTANTIATE_TEST_SUITE_P(QtMediaLoader, DamagedImage,
                         testing::Values("cut.png", "cut_before_end.png", "cut_in_header.png",
                                         "flipped.png", "too_few_rows.png", "cut.jpg",
                                         "cut_before_end.jpg", "cut_in_header.jpg",
                                         "zeros_at_end.jpg", "cut.gif", "empty.png", "text.png"));

/// The most memory that `action` needed beyond what there was before, in MiB.
double peakOf(const auto& action) {
    const auto kibibytes = [](const std::string& key) {
        std::ifstream status("/proc/self/status");
        for (std::string line; std::getline(status, line);)
            if (line.starts_with(key + ":")) return std::stod(line.substr(key.size() + 1));
        return 0.0;
    };
    std::ofstream("/proc/self/clear_refs") << 5;
    const double before = kibibytes("VmRSS");
    action();
    return (kibibytes("VmHWM") - before) / 1024;
}

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr double memoryLimit = 4096;  // theirs, not ours
#else
constexpr double memoryLimit = 32;
#endif

class HostileImage : public testing::TestWithParam<const char*> {};

TEST_P(HostileImage, CostsLittle) {
    EXPECT_LT(peakOf([] { drawn(GetParam(), quarters); }), memoryLimit);
}

INSTANTIATE_TEST_SUITE_P(QtMediaLoader, HostileImage,
                         testing::Values("huge.png", "huge.jpg", "huge_progressive.jpg", "huge.gif",
                                         "texts.png", "many_scans.jpg"));

class LyingImage : public testing::TestWithParam<const char*> {};

TEST_P(LyingImage, GivesNoPicture) {
    EXPECT_EQ(drawn(GetParam(), quarters), nullptr);
}

INSTANTIATE_TEST_SUITE_P(QtMediaLoader, LyingImage,
                         testing::Values("huge.png", "huge.jpg", "huge_progressive.jpg", "huge.gif",
                                         "many_scans.jpg"));

TEST(QtMediaLoaderTest, OnlyRegularFilesAreOpened) {
    const QTemporaryDir folder;
    const std::string pipe = folder.filePath(QStringLiteral("pipe.png")).toStdString();
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    QtMediaLoader loader;
    EXPECT_EQ(loader.openImage(Url::file(pipe)), nullptr);
    EXPECT_EQ(loader.openImage(Url::file("/dev/zero")), nullptr);
    EXPECT_EQ(loader.openImage(Url::file(folder.path().toStdString())), nullptr);
}

TEST(QtMediaLoaderTest, NothingIsWrittenAboutBadFiles) {
    testing::internal::CaptureStderr();
    for (const auto* name : {"cut.png", "flipped.png", "cut_in_header.png", "huge.png", "huge.jpg",
                             "cut.jpg", "cut_in_header.jpg", "cut.gif", "huge.gif", "texts.png"})
        drawn(name, quarters);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(QtMediaLoaderTest, AnotherThreadMayUseIt) {
    QtMediaLoader loader;
    ImagePointer image;
    std::jthread([&] {
        if (const auto file = loader.openImage(sample("baseline.jpg")))
            image = file->draw(quarters);
    }).join();
    ASSERT_NE(image, nullptr);
    EXPECT_THAT(colors(*image), IsAbout(std::array{red, green, blue, yellow}));
}

}  // namespace
}  // namespace vantle
