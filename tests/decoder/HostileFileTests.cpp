#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

#include "contract/TemporaryFolder.h"
#include "samples/Samples.h"

namespace vantle {
namespace {

using namespace samples;

using Bytes = std::string;

Bytes contents(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

bool isRecording(const std::string& name) {
    constexpr std::array extensions = {".mp4", ".mov", ".m4v", ".webm", ".mkv"};
    return std::ranges::any_of(extensions, [&](auto* each) { return name.ends_with(each); });
}

/// Opens a file, and expects that the decoder still draws a good file afterwards.
class HostileFile : public testing::Test {
protected:
    void open(const Url& url) {
        if (isRecording(std::string(url.path()))) {
            if (const auto recording = loader.openRecording(url)) recording->frame(0.5, 800);
        } else if (const auto image = loader.openImage(url)) {
            image->draw(usual);
        }
    }

    void openBytes(const std::string& name, const Bytes& bytes) {
        const Url url = folder / name;
        std::ofstream(std::string(url.path()), std::ios::binary | std::ios::trunc) << bytes;
        open(url);
    }

    void expectGoodFileWorks() {
        const auto image = loader.openImage(file("rgb.png"));
        ASSERT_NE(image, nullptr);
        const auto picture = image->draw(usual);
        ASSERT_NE(picture, nullptr);
        EXPECT_THAT(quarters(*picture), IsAbout(usualQuarters, 0));
    }

    TemporaryFolder folder;
    Loader loader;
};

// The sanitizers find more, and take many times as long.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr std::uintmax_t places = 20;
constexpr int times = 200;
#else
constexpr std::uintmax_t places = 200;
constexpr int times = 2000;
#endif

class CutOff : public HostileFile, public testing::WithParamInterface<const char*> {};

TEST_P(CutOff, EverySampleIsHarmlessAtManyLengths) {
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(VANTLE_SAMPLES)) {
        // These use all the time that they are allowed, wherever they are cut off.
        const bool isLong =
            entry.path().stem() == "endless" || entry.path().stem() == "many_scans" ||
            entry.path().stem() == "large_progressive" || entry.path().stem() == "large_frames";
        if (entry.path().extension() != GetParam() || isLong) continue;
        const Url copy = folder / entry.path().filename().string();
        std::filesystem::copy_file(entry.path(), copy.path());
        for (std::uintmax_t place = places; place-- > 0;) {
            std::filesystem::resize_file(copy.path(), entry.file_size() * place / places);
            open(copy);
        }
        ++count;
    }
    EXPECT_GT(count, 0);
    expectGoodFileWorks();
}

INSTANTIATE_TEST_SUITE_P(Samples, CutOff,
                         testing::Values(".png", ".jpg", ".gif", ".tif", ".tiff", ".heic", ".avif",
                                         ".webp", ".pdf", ".mp4", ".mov", ".m4v", ".webm", ".mkv"));

/// One sample for each path through the decoder.
constexpr std::array ofEachKind = {"filters_rgba.png",
                                   "interlaced.png",
                                   "palette.png",
                                   "baseline.jpg",
                                   "progressive.jpg",
                                   "interlaced.gif",
                                   "strips.tif",
                                   "tiled.tif",
                                   "jpeg.tif",
                                   "float_predicted.tif",
                                   "float_planes_packed.tif",
                                   "float_planes_tiled.tif",
                                   "deep_cmyk_tiled.tif",
                                   "cmyk_alpha.tif",
                                   "quarters.heic",
                                   "quarters.avif",
                                   "lossy.webp",
                                   "lossless.webp",
                                   "animated.webp",
                                   "translucent_lossy.webp",
                                   "letters.pdf",
                                   "ten_seconds.mp4",
                                   "fragments.mp4",
                                   "live.webm",
                                   "vp9.webm",
                                   "av1.webm",
                                   "h264.mkv"};

class Flipped : public HostileFile, public testing::WithParamInterface<const char*> {};

TEST_P(Flipped, ThousandsOfFlippedBytesAreHarmless) {
    const Bytes whole = contents(std::string(file(GetParam()).path()));
    ASSERT_FALSE(whole.empty());
    std::mt19937 random(1);
    for (int i = 0; i < times; ++i) {
        Bytes bytes = whole;
        for (unsigned flips = 1 + random() % 8; flips > 0; --flips)
            bytes[random() % bytes.size()] = static_cast<char>(random());
        openBytes(GetParam(), bytes);
    }
    expectGoodFileWorks();
}

INSTANTIATE_TEST_SUITE_P(Samples, Flipped, testing::ValuesIn(ofEachKind));

class Bomb : public testing::TestWithParam<const char*> {
protected:
    /// Returns the peak memory in KiB that a thumbnail takes, inside and outside the decoder.
    long peakMemory(const Url& url) {
        const Url out = folder / "out.png";
        std::string program = VANTLE_DECODER;
        std::string in(url.path());
        std::string target(out.path());
        const std::array arguments = {program.data(), const_cast<char*>("--thumbnail"), in.data(),
                                      target.data(), static_cast<char*>(nullptr)};
        pid_t process = 0;
        EXPECT_EQ(
            posix_spawn(&process, program.c_str(), nullptr, nullptr, arguments.data(), environ), 0);
        rusage usage{};
        EXPECT_EQ(wait4(process, nullptr, 0, &usage), process);
        return usage.ru_maxrss;
    }

    TemporaryFolder folder;
};

TEST_P(Bomb, EndsInTimeAndWithinTheLimitOfMemory) {
    constexpr long limit = 1 << 20;
    EXPECT_LT(peakMemory(file(GetParam())), limit);
}

INSTANTIATE_TEST_SUITE_P(
    Samples, Bomb,
    testing::Values("huge.png", "huge.jpg", "huge_progressive.jpg", "large_progressive.jpg",
                    "many_scans.jpg", "texts.png", "huge.gif", "many_frames.gif", "huge.tif",
                    "huge_tile.tif", "four_gigabytes.tif", "directory_in_itself.tif",
                    "far_away.tif", "huge_float.tif", "huge_planes.tif", "many_samples.tif",
                    "sixteen_planes.tif", "recursive_pages.pdf", "recursive_form.pdf",
                    "huge_page.pdf", "endless.pdf", "huge.webp", "huge_lossy.webp",
                    "huge_canvas.webp", "large_canvas.webp", "many_frames.webp", "huge.avif",
                    "huge.heic", "lying_index.mp4", "long_index.mp4", "huge_frames.webm",
                    "large_frames.webm"));

class LyingFile : public testing::TestWithParam<const char*> {};

TEST_P(LyingFile, GivesNoPicture) {
    EXPECT_EQ(drawn(GetParam()), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Samples, LyingFile,
                         testing::Values("huge.png", "huge.jpg", "huge_progressive.jpg", "huge.gif",
                                         "huge.tif", "four_gigabytes.tif", "huge_float.tif",
                                         "huge_planes.tif", "many_samples.tif",
                                         "sixteen_planes.tif", "three_inks.tif", "many_scans.jpg",
                                         "recursive_pages.pdf", "huge_page.pdf", "huge.webp",
                                         "huge_lossy.webp", "huge_canvas.webp",
                                         "frame_outside.webp", "huge.avif", "huge.heic"));

TEST_F(HostileFile, ALyingRecordingGivesNoPicture) {
    for (const auto* name : {"lying_index.mp4", "long_index.mp4", "huge_frames.webm"}) {
        const auto recording = loader.openRecording(file(name));
        EXPECT_EQ(recording ? recording->frame(0.5, 800) : nullptr, nullptr) << name;
    }
    expectGoodFileWorks();
}

TEST_F(HostileFile, ReadsOnlyTheFirstOfManyFrames) {
    for (const auto* name : {"many_frames.gif", "many_frames.webp"}) {
        const auto image = loader.openImage(file(name));
        ASSERT_NE(image, nullptr) << name;
        EXPECT_NE(image->draw({2, 2}), nullptr) << name;
    }
}

TEST_F(HostileFile, OnlyRegularFilesAreOpened) {
    const Url pipe = folder / "pipe.png";
    ASSERT_EQ(mkfifo(std::string(pipe.path()).c_str(), 0600), 0);
    const Url link = folder / "link.png";
    std::filesystem::create_symlink(file("rgb.png").path(), link.path());
    for (const Url& url : {pipe, link, Url::file("/dev/zero"), folder.url()}) {
        EXPECT_EQ(loader.openImage(url), nullptr);
        EXPECT_EQ(loader.openRecording(url), nullptr);
    }
    expectGoodFileWorks();
}

TEST_F(HostileFile, AFileThatGrowsOrShrinksMeanwhileIsHarmless) {
    const Url copy = folder / "changing.pdf";
    std::filesystem::copy_file(file("letters.pdf").path(), copy.path());
    const auto image = loader.openImage(copy);
    ASSERT_NE(image, nullptr);
    // The decoder has mapped the file into memory.
    std::filesystem::resize_file(copy.path(), 0);
    EXPECT_EQ(image->draw(usual), nullptr);
    expectGoodFileWorks();
}

}  // namespace
}  // namespace vantle
