#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <string>
#include <vector>

#include "Disks.h"

namespace vantle {
namespace {

using Existence = FileManager::Existence;
using testing::IsEmpty;

template <typename Disk>
class FileManagerContract : public testing::Test {
protected:
    Url file(std::string_view name) const { return disk.folder.appending(name); }
    std::vector<std::string> names() const {
        const auto listed = disk.files.contentsOfDirectory(disk.folder);
        std::vector<std::string> names;
        if (!listed) return {"(" + listed.failure().message + ")"};
        for (std::size_t i = 0; i < listed.value().size(); ++i)
            names.emplace_back(listed.value()[i]);
        return names;
    }
    int failureOfListing(const Url& folder) const {
        const auto listed = disk.files.contentsOfDirectory(folder);
        return listed ? 0 : listed.failure().code;
    }

    Disk disk;
};

using Disks = testing::Types<FakeDisk, RealDisk>;
TYPED_TEST_SUITE(FileManagerContract, Disks);

TYPED_TEST(FileManagerContract, TellsFilesFromFoldersFromNothing) {
    this->disk.save(this->file("a.png"));
    EXPECT_EQ(this->disk.files.existence(this->file("a.png")), Existence::file);
    EXPECT_EQ(this->disk.files.existence(this->disk.folder), Existence::directory);
    EXPECT_EQ(this->disk.files.existence(this->file("nothing")), Existence::none);
}

TYPED_TEST(FileManagerContract, ListsAllNamesButHiddenOnes) {
    EXPECT_THAT(this->names(), IsEmpty());
    const std::vector<std::string> names{"a.png",
                                         "a b%20c.png",
                                         "new\nline.png",
                                         "\xff\xfe.png",
                                         "-rf",
                                         "a.png.part",
                                         std::string(251, 'n') + ".png"};
    for (const auto& name : names) this->disk.save(this->file(name));
    this->disk.save(this->file(".hidden.png"));
    (void)this->disk.files.createDirectory(this->file("folder.png"));
    auto expected = names;
    expected.emplace_back("folder.png");
    EXPECT_THAT(this->names(), testing::UnorderedElementsAreArray(expected));
}

TYPED_TEST(FileManagerContract, ListingFailsWithTheReason) {
    this->disk.save(this->file("a.png"));
    EXPECT_EQ(this->failureOfListing(this->file("nothing")), ENOENT);
    EXPECT_EQ(this->failureOfListing(this->file("a.png")), ENOTDIR);
}

TYPED_TEST(FileManagerContract, DescribesAFileWithoutOpeningIt) {
    this->disk.save(this->file("a.png"));
    const auto values = this->disk.files.resourceValues(this->file("a.png"));
    ASSERT_TRUE(values);
    EXPECT_EQ(values.value().isRegularFile, true);
    EXPECT_TRUE(values.value().contentModificationDate.has_value());
}

TYPED_TEST(FileManagerContract, AFolderIsNoRegularFile) {
    const auto values = this->disk.files.resourceValues(this->disk.folder);
    ASSERT_TRUE(values);
    EXPECT_EQ(values.value().isRegularFile, false);
}

TYPED_TEST(FileManagerContract, WhatHasGoneCannotBeDescribed) {
    const auto values = this->disk.files.resourceValues(this->file("nothing"));
    ASSERT_FALSE(values);
    EXPECT_EQ(values.failure().code, ENOENT);
    EXPECT_EQ(this->disk.files.fileSize(this->file("nothing")), std::nullopt);
}

TYPED_TEST(FileManagerContract, TellsTheSizeOfAFile) {
    this->disk.save(this->file("a.png"), 0);
    EXPECT_EQ(this->disk.files.fileSize(this->file("a.png")), 0);
    this->disk.save(this->file("a.png"), 70'000);
    EXPECT_EQ(this->disk.files.fileSize(this->file("a.png")), 70'000);
}

TYPED_TEST(FileManagerContract, MakesAFolderWithItsParents) {
    const Url deep = this->file("a").appending("b").appending("c");
    EXPECT_EQ(this->disk.files.createDirectory(deep), std::nullopt);
    EXPECT_EQ(this->disk.files.existence(deep), Existence::directory);
    EXPECT_EQ(this->disk.files.createDirectory(deep), std::nullopt);
}

TYPED_TEST(FileManagerContract, MakesNoFolderWhereAFileStands) {
    this->disk.save(this->file("a.png"));
    const auto failure = this->disk.files.createDirectory(this->file("a.png"));
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->code, EEXIST);
}

TYPED_TEST(FileManagerContract, MakesNoFolderWhereItMayNot) {
    [[maybe_unused]] const auto locked = this->disk.lock(this->disk.folder);
    const auto failure = this->disk.files.createDirectory(this->file("a").appending("b"));
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->code, EACCES);
}

TYPED_TEST(FileManagerContract, WritesAFileInThePlaceOfAnother) {
    EXPECT_EQ(this->disk.files.write("four", this->file("a.png")), std::nullopt);
    EXPECT_EQ(this->disk.files.fileSize(this->file("a.png")), 4);
    EXPECT_EQ(this->disk.files.write("longer", this->file("a.png")), std::nullopt);
    EXPECT_EQ(this->disk.files.fileSize(this->file("a.png")), 6);
    EXPECT_THAT(this->names(), testing::ElementsAre("a.png"));
}

TYPED_TEST(FileManagerContract, WritesNothingWhereItMayNot) {
    [[maybe_unused]] const auto locked = this->disk.lock(this->disk.folder);
    const auto failure = this->disk.files.write("four", this->file("a.png"));
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->code, EACCES);
    EXPECT_EQ(this->disk.files.existence(this->file("a.png")), Existence::none);
}

class LinuxFileManagerTest : public FileManagerContract<RealDisk> {
protected:
    std::optional<bool> isRegularFile(const Url& url) const {
        const auto values = disk.files.resourceValues(url);
        return values ? values.value().isRegularFile : std::nullopt;
    }
};

TEST_F(LinuxFileManagerTest, KnowsTheHomeDirectoriesOfOthers) {
    EXPECT_EQ(disk.files.homeDirectory("root"), Url::file("/root"));
    EXPECT_EQ(disk.files.homeDirectory("no such user"), std::nullopt);
}

TEST_F(LinuxFileManagerTest, ALinkIsDescribedItself) {
    disk.save(file("a.png"), 10);
    std::filesystem::create_symlink(file("a.png").path(), file("link.png").path());
    EXPECT_EQ(isRegularFile(file("link.png")), false);
    EXPECT_EQ(disk.files.existence(file("link.png")), Existence::file);
    EXPECT_EQ(disk.files.fileSize(file("link.png")), 10);
    std::filesystem::create_symlink("nowhere", file("broken.png").path());
    EXPECT_EQ(disk.files.existence(file("broken.png")), Existence::none);
}

TEST_F(LinuxFileManagerTest, APipeNamedLikeARecordingIsNoFileAndHoldsNobodyUp) {
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

TEST_F(LinuxFileManagerTest, AReaderDoesNotHoldUpARecording) {
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

TEST_F(LinuxFileManagerTest, DatesFarFromTodayAreDates) {
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

class TemporaryDirectoryTest : public testing::Test {
protected:
    std::string name() const { return "vantle-" + std::to_string(getuid()); }

    TemporaryFolder shared;
    LinuxFileManager files{[this](const std::string& variable) {
                               return variable == "TMPDIR" ? std::optional(shared.url().path())
                                                           : std::nullopt;
                           },
                           RealDisk::isRecording};
};

TEST_F(TemporaryDirectoryTest, IsThisUsersAlone) {
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

TEST_F(TemporaryDirectoryTest, CannotBeHadWhereNothingCanBeWritten) {
    const Locked locked(shared.url(), RealDisk::readable);
    EXPECT_FALSE(files.temporaryDirectory());
}

}  // namespace
}  // namespace vantle
