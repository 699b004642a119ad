#include <gtest/gtest.h>

#include <filesystem>
#include <optional>

#include "contract/EventLoop.h"
#include "contract/TemporaryFolder.h"
#include "contract/TextFile.h"
#include "platform/freedesktop/FileUse.h"

namespace vantle {
namespace {

using namespace std::chrono_literals;

class FileUseTest : public testing::Test {
protected:
    FileUseTest() {
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
    std::optional<FileUse> use;
};

TEST_F(FileUseTest, ReadingAFileUsesIt) {
    EXPECT_EQ(readText(second), "contents");
    EXPECT_EQ(wait(1min), true);
}

TEST_F(FileUseTest, MovingAFileUsesIt) {
    std::filesystem::rename(first.path(), (folder / "moved.png").path());
    EXPECT_EQ(wait(1min), true);
}

TEST_F(FileUseTest, InspectingOrLinkingAFileDoesNotUseIt) {
    EXPECT_EQ(std::filesystem::file_size(first.path()), 8U);
    std::filesystem::create_symlink(first.path(), (folder / "link.png").path());
    EXPECT_EQ(wait(50ms), false);
}

}  // namespace
}  // namespace vantle
