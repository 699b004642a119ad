#include <gtest/gtest.h>
#include <poll.h>
#include <sys/inotify.h>

#include <filesystem>

#include "contract/TemporaryFolder.h"
#include "samples/Samples.h"
#include "support/FileDescriptor.h"

namespace vantle {
namespace {

using namespace samples;

/// The kernel reports a deleted folder as gone only when nobody holds a file in it.
class HeldFile : public testing::Test {
protected:
    HeldFile() {
        std::filesystem::create_directory(folder.path());
        inotify_add_watch(watch.get(), std::string(folder.path()).c_str(), IN_DELETE_SELF);
    }

    Url copyOf(const std::string& name) {
        const Url copy = folder.appending(name);
        std::filesystem::copy_file(file(name).path(), copy.path());
        return copy;
    }

    bool isFolderGoneWhenItIsRemoved() {
        std::filesystem::remove_all(folder.path());
        pollfd said{watch.get(), POLLIN, 0};
        // The end of the decoder would release everything, so the test waits for less than that
        // time.
        constexpr int milliseconds = decoder::decoderTimeout * 1000 / 2;
        return poll(&said, 1, milliseconds) > 0;
    }

    const TemporaryFolder parent;
    const Url folder = parent / "captures";
    const FileDescriptor watch{inotify_init1(IN_CLOEXEC)};
    Loader loader;
};

class HeldImage : public HeldFile, public testing::WithParamInterface<const char*> {};

TEST_P(HeldImage, IsReleasedAfterItIsDrawn) {
    const Url copy = copyOf(GetParam());
    if (const auto image = loader.openImage(copy)) image->draw(usual);
    EXPECT_TRUE(isFolderGoneWhenItIsRemoved());
}

TEST_P(HeldImage, IsReleasedAfterItIsOpened) {
    const Url copy = copyOf(GetParam());
    loader.openImage(copy);
    EXPECT_TRUE(isFolderGoneWhenItIsRemoved());
}

INSTANTIATE_TEST_SUITE_P(Honest, HeldImage,
                         testing::Values("rgb.png", "interlaced.png", "baseline.jpg",
                                         "straight.gif", "strips.tif", "quarters.heic",
                                         "lossy.webp", "letters.pdf", "two_pages.pdf",
                                         "really_jpeg.png"));
INSTANTIATE_TEST_SUITE_P(Damaged, HeldImage,
                         testing::Values("cut_in_header.png", "flipped.png", "cut.tif", "cut.pdf",
                                         "cut.webp", "text.png"));

class HeldRecording : public HeldFile, public testing::WithParamInterface<const char*> {};

TEST_P(HeldRecording, IsReleasedAfterItsFrameIsDrawn) {
    const Url copy = copyOf(GetParam());
    if (const auto recording = loader.openRecording(copy)) recording->frame(0.5, 800);
    EXPECT_TRUE(isFolderGoneWhenItIsRemoved());
}

INSTANTIATE_TEST_SUITE_P(Samples, HeldRecording,
                         testing::Values("ten_seconds.mp4", "vp9.webm", "cut.mp4", "rgb.png"));

TEST_F(HeldFile, StaysReadableUntilItsImageGoes) {
    const auto image = loader.openImage(copyOf("rgb.png"));
    ASSERT_NE(image, nullptr);
    std::filesystem::remove_all(folder.path());
    EXPECT_NE(image->draw(usual), nullptr);
    EXPECT_NE(image->draw({32, 24}), nullptr);
}

}  // namespace
}  // namespace vantle
