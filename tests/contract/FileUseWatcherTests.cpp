#include <gtest/gtest.h>

#include <filesystem>
#include <optional>

#include "contract/EventLoop.h"
#include "contract/TemporaryFolder.h"
#include "contract/TextFile.h"
#include "platform/freedesktop/FileUseWatcher.h"

namespace vantle {
namespace {

using namespace std::chrono_literals;

class FileUseWatcherTest : public testing::Test {
protected:
    FileUseWatcherTest() {
        for (const Url& file : {first, second}) writeText(file, "contents");
        use.emplace(std::vector{first, second});
    }

    /// Returns std::nullopt if there is no answer.
    std::optional<bool> wait(std::chrono::milliseconds timeout) {
        std::optional<bool> answer;
        use->wait(timeout, [&](bool wasUsed) { answer = wasUsed; });
        EXPECT_FALSE(answer) << "told inside the call";
        EXPECT_TRUE(runUntil([&] { return answer.has_value(); }));
        return answer;
    }

    const TemporaryFolder folder;
    const Url first = folder / "first.png";
    const Url second = folder / "second.png";
    std::optional<FileUseWatcher> use;
};

TEST_F(FileUseWatcherTest, ReadingAFileUsesIt) {
    EXPECT_EQ(readText(second), "contents");
    EXPECT_EQ(wait(1min), true);
}

TEST_F(FileUseWatcherTest, MovingAFileUsesIt) {
    std::filesystem::rename(first.path(), (folder / "moved.png").path());
    EXPECT_EQ(wait(1min), true);
}

TEST_F(FileUseWatcherTest, InspectingOrLinkingAFileDoesNotUseIt) {
    EXPECT_EQ(std::filesystem::file_size(first.path()), 8U);
    std::filesystem::create_symlink(first.path(), (folder / "link.png").path());
    EXPECT_EQ(wait(50ms), false);
}

}  // namespace
}  // namespace vantle
