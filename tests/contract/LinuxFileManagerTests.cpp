#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <string>

#include "contract/FileManagerContract.h"
#include "contract/RealDisk.h"
#include "fakes/FakeEnvironment.h"

namespace vantle {
namespace {

using Existence = FileManager::Existence;

INSTANTIATE_TYPED_TEST_SUITE_P(LinuxFileManager, FileManagerContract, RealDisk);

class LinuxFileManagerTest : public FileManagerContract<RealDisk> {
protected:
    std::optional<bool> isRegularFile(const Url& url) const {
        const auto values = disk.files.resourceValues(url);
        return values ? values.value().isRegularFile : std::nullopt;
    }
};

TEST_F(LinuxFileManagerTest, FindsTheHomeDirectoriesOfOthers) {
    EXPECT_EQ(disk.files.homeDirectory("root"), Url::file("/root"));
    EXPECT_EQ(disk.files.homeDirectory("no such user"), std::nullopt);
}

TEST_F(LinuxFileManagerTest, DescribesALinkItself) {
    disk.save(file("a.png"), 10);
    std::filesystem::create_symlink(file("a.png").path(), file("link.png").path());
    EXPECT_EQ(isRegularFile(file("link.png")), false);
    EXPECT_EQ(disk.files.existence(file("link.png")), Existence::file);
    EXPECT_EQ(disk.files.fileSize(file("link.png")), 10);
    std::filesystem::create_symlink("nowhere", file("broken.png").path());
    EXPECT_EQ(disk.files.existence(file("broken.png")), Existence::none);
}

TEST_F(LinuxFileManagerTest, APipeNamedLikeARecordingIsNoFileAndDoesNotBlock) {
    ASSERT_EQ(mkfifo(file("x.mp4").path().c_str(), 0600), 0);
    EXPECT_EQ(isRegularFile(file("x.mp4")), false);
}

TEST_F(LinuxFileManagerTest, ARecordingThatIsBeingWrittenIsNotYetKnownToBeAFile) {
    std::ofstream recorder(file("a.mp4").path());
    recorder << "begun" << std::flush;
    EXPECT_EQ(isRegularFile(file("a.mp4")), std::nullopt);
    recorder.close();
    EXPECT_EQ(isRegularFile(file("a.mp4")), true);
}

TEST_F(LinuxFileManagerTest, AnImageDoesNotWaitForItsWriter) {
    const std::ofstream writer(file("a.png").path());
    EXPECT_EQ(isRegularFile(file("a.png")), true);
}

TEST_F(LinuxFileManagerTest, AReaderDoesNotDelayARecording) {
    disk.save(file("a.mp4"));
    const std::ifstream reader(file("a.mp4").path());
    EXPECT_EQ(isRegularFile(file("a.mp4")), true);
}

TEST_F(LinuxFileManagerTest, AFileOfAnUnreadableFolderCannotBeDescribed) {
    disk.save(file("a.png"));
    const auto locked = disk.lock(disk.folder, std::filesystem::perms::none);
    EXPECT_EQ(failureOfListing(disk.folder), EACCES);
    const auto values = disk.files.resourceValues(file("a.png"));
    ASSERT_FALSE(values);
    EXPECT_EQ(values.failure().code, EACCES);
}

TEST_F(LinuxFileManagerTest, ReadsDatesFarFromToday) {
    disk.save(file("a.png"));
    for (const time_t seconds : {-10'000'000'000L, -1L, 0L, 10'000'000'000L}) {
        const std::array<timespec, 2> times{timespec{seconds, 0}, timespec{seconds, 0}};
        if (utimensat(AT_FDCWD, file("a.png").path().c_str(), times.data(), 0) != 0) continue;
        const auto values = disk.files.resourceValues(file("a.png"));
        ASSERT_TRUE(values);
        const auto& date = values.value().contentModificationDate;
        ASSERT_TRUE(date.has_value());
        EXPECT_EQ(*date < Date(), seconds < 0) << seconds;
    }
}

TEST_F(LinuxFileManagerTest, ALinkToTheSameFileIsNotReplaced) {
    disk.save(file("a.png"), 10);
    std::filesystem::create_hard_link(file("a.png").path(), file("b.png").path());
    const auto failure = disk.files.rename(file("a.png"), file("b.png"));
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->code, EEXIST);
    EXPECT_EQ(failure->path, file("b.png").path());
    std::filesystem::create_symlink("nowhere", file("broken.png").path());
    EXPECT_TRUE(disk.files.rename(file("a.png"), file("broken.png")).has_value());
    EXPECT_EQ(disk.files.fileSize(file("a.png")), 10);
}

class TemporaryDirectoryTest : public testing::Test {
protected:
    std::string name() const { return "vantle-" + std::to_string(getuid()); }

    TemporaryFolder shared;
    fakes::FakeEnvironment environment{{"TMPDIR", shared.url().path()}};
    LinuxFileManager files{environment, RealDisk::isRecording};
};

TEST_F(TemporaryDirectoryTest, BelongsToThisUserAlone) {
    for (int i = 0; i < 2; ++i) {
        const auto folder = files.temporaryDirectory();
        ASSERT_TRUE(folder);
        EXPECT_EQ(folder.value(), shared / name());
        EXPECT_EQ(std::filesystem::status(folder.value().path()).permissions(),
                  std::filesystem::perms::owner_all);
    }
}

TEST_F(TemporaryDirectoryTest, IsNotTakenFromOthers) {
    const std::string path = (shared / name()).path();
    std::filesystem::create_directory_symlink("/etc", path);
    EXPECT_FALSE(files.temporaryDirectory());
    std::filesystem::remove(path);
    std::filesystem::create_directory(path);
    std::filesystem::permissions(path, std::filesystem::perms::all);
    EXPECT_FALSE(files.temporaryDirectory());
    std::filesystem::remove(path);
    writeText(shared / name(), "");
    EXPECT_FALSE(files.temporaryDirectory());
}

TEST_F(TemporaryDirectoryTest, FailsIfNothingCanBeWritten) {
    const Locked locked(shared.url(), RealDisk::readable);
    EXPECT_FALSE(files.temporaryDirectory());
}

}  // namespace
}  // namespace vantle
