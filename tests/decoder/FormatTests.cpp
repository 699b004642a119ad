#include <gtest/gtest.h>

#include <thread>

#include "samples/Samples.h"

namespace vantle {
namespace {

using namespace samples;

class HonestImage : public testing::TestWithParam<const char*> {};

TEST_P(HonestImage, ShowsItsFourQuarters) {
    for (const Size size : {usual, Size{32, 24}, Size{20, 15}}) {
        const auto image = drawn(GetParam(), size);
        ASSERT_NE(image, nullptr);
        EXPECT_EQ(image->pixelsWide, static_cast<int>(size.width));
        EXPECT_EQ(image->pixelsHigh, static_cast<int>(size.height));
        EXPECT_THAT(quarters(*image), IsAbout(usualQuarters, 6));
    }
}

INSTANTIATE_TEST_SUITE_P(Png, HonestImage,
                         testing::Values("rgb.png", "palette.png", "palette2.png", "palette4.png",
                                         "deep.png", "interlaced.png", "tall_dots.png", "texts.png",
                                         "filters_rgb.png", "filters_rgba.png", "animated.png",
                                         "many_chunks.png", "dense.png"));
INSTANTIATE_TEST_SUITE_P(Jpeg, HonestImage,
                         testing::Values("baseline.jpg", "progressive.jpg", "rotated.jpg",
                                         "cmyk.jpg", "dense.jpg", "large.jpg", "really_jpeg.png"));
INSTANTIATE_TEST_SUITE_P(Gif, HonestImage,
                         testing::Values("animated.gif", "interlaced.gif", "straight.gif"));
INSTANTIATE_TEST_SUITE_P(Tiff, HonestImage,
                         testing::Values("raw.tiff", "lzw.tif", "deflate.tif", "packbits.tif",
                                         "jpeg.tif", "pages.tif", "palette.tif", "turned.tif",
                                         "tiled.tif", "tiled_deflate.tif", "strips.tif", "deep.tif",
                                         "deep_big_endian.tif", "planar.tif", "cmyk.tif",
                                         "directory_in_itself.tif"));
INSTANTIATE_TEST_SUITE_P(TiffOfNumbersWithAPoint, HonestImage,
                         testing::Values("half.tif", "float.tif", "float_big_endian.tif",
                                         "float_strips.tif", "float_predicted.tif",
                                         "float_tiled.tif", "float_planes.tif",
                                         "float_planes_packed.tif", "float_planes_tiled.tif",
                                         "double.tif", "wild_half.tif", "wild_float.tif",
                                         "wild_double.tif", "deepest.tif"));
INSTANTIATE_TEST_SUITE_P(TiffOfInk, HonestImage,
                         testing::Values("deep_cmyk.tif", "deep_cmyk_strips.tif",
                                         "deep_cmyk_tiled.tif", "deep_cmyk_planes.tif",
                                         "float_cmyk.tif", "five_inks.tif"));
INSTANTIATE_TEST_SUITE_P(Heic, HonestImage,
                         testing::Values("quarters.heic", "large.heic", "quarters.avif",
                                         "large.avif"));
INSTANTIATE_TEST_SUITE_P(Webp, HonestImage,
                         testing::Values("lossy.webp", "lossless.webp", "large.webp",
                                         "animated.webp", "rotated.webp", "rotated_as_in_jpeg.webp",
                                         "really_webp.png"));
INSTANTIATE_TEST_SUITE_P(Pdf, HonestImage,
                         testing::Values("quarters.pdf", "after_garbage.pdf", "turned.pdf"));

constexpr std::array halfQuarters{Color{128, 0, 0, 128}, Color{0, 128, 0, 128},
                                  Color{0, 0, 128, 128}, Color{128, 128, 0, 128}};

class TranslucentImage : public testing::TestWithParam<const char*> {};

TEST_P(TranslucentImage, IsPremultiplied) {
    for (const Size size : {usual, Size{32, 24}}) {
        const auto image = drawn(GetParam(), size);
        ASSERT_NE(image, nullptr);
        EXPECT_THAT(quarters(*image), IsAbout(halfQuarters, 3));
        for (std::size_t i = 0; i < image->rgba.size(); i += 4)
            for (std::size_t part = 0; part < 3; ++part)
                ASSERT_LE(image->rgba[i + part], image->rgba[i + 3]);
    }
}

INSTANTIATE_TEST_SUITE_P(Formats, TranslucentImage,
                         testing::Values("translucent.png", "deep_translucent.png",
                                         "interlaced_translucent.png", "straight_alpha.tif",
                                         "float_alpha.tif", "cmyk_alpha.tif",
                                         "multiplied_cmyk_alpha.tif", "five_samples.tif",
                                         "translucent.heic", "translucent.avif", "translucent.webp",
                                         "translucent_lossy.webp"));

TEST(TransparentImage, IsEmptyWhereItsColorIsTransparent) {
    for (const auto* name : {"transparent_color.png", "transparent.gif"}) {
        const auto image = drawn(name);
        ASSERT_NE(image, nullptr) << name;
        EXPECT_THAT(quarters(*image), IsAbout(std::array{red, green, nothing, yellow}, 0)) << name;
    }
}

TEST(TransparentImage, MayHaveAPaletteWithAlpha) {
    const auto image = drawn("palette_transparent.png");
    ASSERT_NE(image, nullptr);
    EXPECT_THAT(quarters(*image),
                IsAbout(std::array{red, Color{0, 128, 0, 128}, nothing, yellow}, 0));
}

TEST(TransparentImage, IsEmptyOutsideOfItsOnlyFrame) {
    const auto image = drawn("one_quarter.gif");
    ASSERT_NE(image, nullptr);
    EXPECT_THAT(quarters(*image), IsAbout(std::array{red, nothing, nothing, nothing}, 0));
}

TEST(TransparentImage, IsEmptyAroundAFirstFrameThatIsFartherIn) {
    const auto image = drawn("one_quarter.webp");
    ASSERT_NE(image, nullptr);
    EXPECT_THAT(quarters(*image), IsAbout(std::array{nothing, nothing, nothing, yellow}, 0));
}

class GrayImage : public testing::TestWithParam<const char*> {};

TEST_P(GrayImage, IsBlackAtTheLeftAndWhiteAtTheRight) {
    const auto image = drawn(GetParam(), {32, 24});
    ASSERT_NE(image, nullptr);
    EXPECT_THAT(quarters(*image), IsAbout(std::array{black, white, black, white}, 0));
}

INSTANTIATE_TEST_SUITE_P(Formats, GrayImage,
                         testing::Values("gray1.png", "gray2.png", "gray4.png", "gray8.png",
                                         "gray16.png", "gray_float.tif"));

TEST(GrayImageTest, MayStoreWhiteAsZero) {
    const auto image = drawn("bilevel.tif");
    ASSERT_NE(image, nullptr);
    EXPECT_THAT(quarters(*image), IsAbout(std::array{white, black, white, black}, 0));
}

TEST(GrayImageTest, MayHaveFloatingPointValues) {
    const auto image = drawn("gray_steps.tif");
    ASSERT_NE(image, nullptr);
    constexpr std::array steps{black, Color{64, 64, 64, 255}, Color{128, 128, 128, 255}, white};
    EXPECT_THAT(quarters(*image), IsAbout(steps, 0));
}

TEST(GrayImageTest, MayBeTranslucentInSixteenBits) {
    const auto image = drawn("deep_gray_alpha.tif");
    ASSERT_NE(image, nullptr);
    constexpr Color half{128, 128, 128, 128};
    constexpr Color shade{0, 0, 0, 128};
    EXPECT_THAT(quarters(*image), IsAbout(std::array{half, shade, shade, half}, 0));
}

TEST(GrayImageTest, HasEqualParts) {
    for (const auto* name : {"gray.jpg", "gray_alpha.png", "fax.tif"}) {
        const auto image = drawn(name);
        ASSERT_NE(image, nullptr) << name;
        for (std::size_t i = 0; i < image->rgba.size(); i += 4) {
            ASSERT_EQ(image->rgba[i], image->rgba[i + 1]) << name;
            ASSERT_EQ(image->rgba[i + 1], image->rgba[i + 2]) << name;
        }
    }
}

class ProfiledImage : public testing::TestWithParam<const char*> {};

TEST_P(ProfiledImage, IsConvertedToScreenColors) {
    const auto image = drawn(GetParam());
    ASSERT_NE(image, nullptr);
    // The file stores red and green, and its profile exchanges these two.
    EXPECT_THAT(quarters(*image), IsAbout(std::array{green, red, blue, yellow}, 12));
}

INSTANTIATE_TEST_SUITE_P(Formats, ProfiledImage,
                         testing::Values("profile.png", "profile.jpg", "profile.tif",
                                         "profile.webp", "profile.heic", "profile.avif",
                                         "profile_cmyk.tif", "profile_float.tif"));

TEST(ProfiledImageTest, MayBeTranslucent) {
    const auto image = drawn("profile_translucent.png");
    ASSERT_NE(image, nullptr);
    constexpr std::array expected{Color{0, 128, 0, 128}, Color{128, 0, 0, 128},
                                  Color{0, 0, 128, 128}, Color{128, 128, 0, 128}};
    EXPECT_THAT(quarters(*image), IsAbout(expected, 6));
}

TEST(PdfTest, DrawsLettersOfAFontThatIsNotEmbedded) {
    if (!hasLandlock()) GTEST_SKIP() << "without Landlock no font can be read";
    const auto image = drawn("letters.pdf", {100, 48});
    ASSERT_NE(image, nullptr);
    const auto dark = std::count_if(image->rgba.begin(), image->rgba.end(),
                                    [](std::uint8_t part) { return part < 64; });
    // The letters have more than 300 dark pixels of three parts each.
    EXPECT_GT(dark, 3 * 300);
    EXPECT_THAT(only(colorAt(*image, 1, 1)), IsAbout(only(white), 0));
}

TEST(PdfTest, IsDrawnWithAllThePixelsOfADenseScreen) {
    const auto image = drawn("quarters.pdf", usual, 3);
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(image->pixelsWide, 192);
    EXPECT_EQ(image->pixelsHigh, 144);
    EXPECT_THAT(quarters(*image), IsAbout(usualQuarters, 0));
}

class DamagedImage : public testing::TestWithParam<const char*> {};

TEST_P(DamagedImage, GivesNoPicture) {
    EXPECT_EQ(drawn(GetParam()), nullptr);
}

INSTANTIATE_TEST_SUITE_P(
    Formats, DamagedImage,
    testing::Values("cut.png", "cut_before_end.png", "cut_in_header.png", "flipped.png",
                    "too_few_rows.png", "cut.jpg", "cut_before_end.jpg", "cut_in_header.jpg",
                    "zeros_at_end.jpg", "cut.gif", "cut.tif", "too_few_rows.tif",
                    "missing_strip.tif", "cut_float.tif", "missing_plane.tif", "cut.heic",
                    "cut.avif", "cut.webp", "cut_before_end.webp", "cut_in_header.webp",
                    "no_frame.webp", "cut.pdf", "no_pages.pdf", "empty.png", "text.png"));

TEST(DecoderTest, LogsNothingAboutAnyFile) {
    if (!hasLandlock()) GTEST_SKIP() << "the program says once that this kernel lacks Landlock";
    testing::internal::CaptureStderr();
    for (const auto* name :
         {"cut.png", "flipped.png", "huge.png", "huge.jpg", "cut.jpg", "cut.gif", "huge.gif",
          "cut.tif", "far_away.tif", "cut.heic", "cut.avif", "cut.webp", "huge_lossy.webp",
          "cut.pdf", "recursive_pages.pdf", "letters.pdf"})
        drawn(name);
    Loader loader;
    for (const auto* name : {"cut.mp4", "lying_index.mp4", "ten_seconds.mp4", "fragments.mp4",
                             "cut.webm", "huge_frames.webm", "live.webm", "av1.webm"})
        if (const auto recording = loader.openRecording(file(name))) recording->frame(0.5, 800);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(DecoderTest, AnotherThreadMayUseIt) {
    Loader loader;
    ImagePointer image;
    std::jthread([&] {
        if (const auto opened = loader.openImage(file("baseline.jpg"))) image = opened->draw(usual);
    }).join();
    ASSERT_NE(image, nullptr);
    EXPECT_THAT(quarters(*image), IsAbout(usualQuarters, 6));
}

}  // namespace
}  // namespace vantle
