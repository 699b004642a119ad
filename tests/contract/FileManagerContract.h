#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <string_view>
#include <vector>

#include "contract/FakeDisk.h"

namespace vantle {

/// A disk (FakeDisk.h) with one folder to work in.
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

TYPED_TEST_SUITE_P(FileManagerContract);

TYPED_TEST_P(FileManagerContract, DistinguishesFilesFoldersAndMissingOnes) {
    this->disk.save(this->file("a.png"));
    EXPECT_EQ(this->disk.files.existence(this->file("a.png")), FileManager::Existence::file);
    EXPECT_EQ(this->disk.files.existence(this->disk.folder), FileManager::Existence::directory);
    EXPECT_EQ(this->disk.files.existence(this->file("nothing")), FileManager::Existence::none);
}

TYPED_TEST_P(FileManagerContract, ListsAllNamesButHiddenOnes) {
    EXPECT_THAT(this->names(), testing::IsEmpty());
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

TYPED_TEST_P(FileManagerContract, ListingFailsWithTheReason) {
    this->disk.save(this->file("a.png"));
    EXPECT_EQ(this->failureOfListing(this->file("nothing")), ENOENT);
    EXPECT_EQ(this->failureOfListing(this->file("a.png")), ENOTDIR);
}

TYPED_TEST_P(FileManagerContract, DescribesAFileWithoutOpeningIt) {
    this->disk.save(this->file("a.png"));
    const auto values = this->disk.files.resourceValues(this->file("a.png"));
    ASSERT_TRUE(values);
    EXPECT_EQ(values.value().isRegularFile, true);
    EXPECT_TRUE(values.value().contentModificationDate.has_value());
}

TYPED_TEST_P(FileManagerContract, AFolderIsNoRegularFile) {
    const auto values = this->disk.files.resourceValues(this->disk.folder);
    ASSERT_TRUE(values);
    EXPECT_EQ(values.value().isRegularFile, false);
}

TYPED_TEST_P(FileManagerContract, AMissingFileCannotBeDescribed) {
    const auto values = this->disk.files.resourceValues(this->file("nothing"));
    ASSERT_FALSE(values);
    EXPECT_EQ(values.failure().code, ENOENT);
    EXPECT_EQ(this->disk.files.fileSize(this->file("nothing")), std::nullopt);
}

TYPED_TEST_P(FileManagerContract, ReturnsTheSizeOfAFile) {
    this->disk.save(this->file("a.png"), 0);
    EXPECT_EQ(this->disk.files.fileSize(this->file("a.png")), 0);
    this->disk.save(this->file("a.png"), 70'000);
    EXPECT_EQ(this->disk.files.fileSize(this->file("a.png")), 70'000);
}

TYPED_TEST_P(FileManagerContract, MakesAFolderWithItsParents) {
    const Url deep = this->file("a").appending("b").appending("c");
    EXPECT_EQ(this->disk.files.createDirectory(deep), std::nullopt);
    EXPECT_EQ(this->disk.files.existence(deep), FileManager::Existence::directory);
    EXPECT_EQ(this->disk.files.createDirectory(deep), std::nullopt);
}

TYPED_TEST_P(FileManagerContract, MakesNoFolderInPlaceOfAFile) {
    this->disk.save(this->file("a.png"));
    const auto failure = this->disk.files.createDirectory(this->file("a.png"));
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->code, EEXIST);
}

TYPED_TEST_P(FileManagerContract, MakesNoFolderWithoutPermission) {
    [[maybe_unused]] const auto locked = this->disk.lock(this->disk.folder);
    const auto failure = this->disk.files.createDirectory(this->file("a").appending("b"));
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->code, EACCES);
}

TYPED_TEST_P(FileManagerContract, ReplacesAFile) {
    EXPECT_EQ(this->disk.files.write("four", this->file("a.png")), std::nullopt);
    EXPECT_EQ(this->disk.files.fileSize(this->file("a.png")), 4);
    EXPECT_EQ(this->disk.files.write("longer", this->file("a.png")), std::nullopt);
    EXPECT_EQ(this->disk.files.fileSize(this->file("a.png")), 6);
    EXPECT_THAT(this->names(), testing::ElementsAre("a.png"));
}

TYPED_TEST_P(FileManagerContract, WritesNoFileWithoutPermission) {
    [[maybe_unused]] const auto locked = this->disk.lock(this->disk.folder);
    const auto failure = this->disk.files.write("four", this->file("a.png"));
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->code, EACCES);
    EXPECT_EQ(this->disk.files.existence(this->file("a.png")), FileManager::Existence::none);
}

TYPED_TEST_P(FileManagerContract, RenamesAFile) {
    this->disk.save(this->file("a.png"), 10);
    EXPECT_EQ(this->disk.files.rename(this->file("a.png"), this->file("b c.png")), std::nullopt);
    EXPECT_THAT(this->names(), testing::ElementsAre("b c.png"));
    EXPECT_EQ(this->disk.files.fileSize(this->file("b c.png")), 10);
    EXPECT_EQ(this->disk.files.rename(this->file("b c.png"), this->file("b c.png")), std::nullopt);
    EXPECT_THAT(this->names(), testing::ElementsAre("b c.png"));
}

TYPED_TEST_P(FileManagerContract, RenamingReplacesNoOtherFile) {
    this->disk.save(this->file("a.png"), 10);
    this->disk.save(this->file("b.png"), 20);
    (void)this->disk.files.createDirectory(this->file("c.png"));
    for (const auto* taken : {"b.png", "c.png"}) {
        const auto failure = this->disk.files.rename(this->file("a.png"), this->file(taken));
        ASSERT_TRUE(failure.has_value());
        EXPECT_EQ(failure->code, EEXIST);
    }
    EXPECT_EQ(this->disk.files.fileSize(this->file("a.png")), 10);
    EXPECT_EQ(this->disk.files.fileSize(this->file("b.png")), 20);
}

TYPED_TEST_P(FileManagerContract, RenamingFailsWithTheReason) {
    const auto codeOf = [this](const Url& from, const Url& to) {
        const auto failure = this->disk.files.rename(from, to);
        return failure ? failure->code : 0;
    };
    EXPECT_EQ(codeOf(this->file("gone.png"), this->file("b.png")), ENOENT);
    this->disk.save(this->file("a.png"));
    EXPECT_EQ(codeOf(this->file("a.png"), this->file(std::string(252, 'n') + ".png")),
              ENAMETOOLONG);
    EXPECT_THAT(this->names(), testing::ElementsAre("a.png"));
    [[maybe_unused]] const auto locked = this->disk.lock(this->disk.folder);
    EXPECT_EQ(codeOf(this->file("a.png"), this->file("b.png")), EACCES);
}

REGISTER_TYPED_TEST_SUITE_P(FileManagerContract, DistinguishesFilesFoldersAndMissingOnes,
                            ListsAllNamesButHiddenOnes, ListingFailsWithTheReason,
                            DescribesAFileWithoutOpeningIt, AFolderIsNoRegularFile,
                            AMissingFileCannotBeDescribed, ReturnsTheSizeOfAFile,
                            MakesAFolderWithItsParents, MakesNoFolderInPlaceOfAFile,
                            MakesNoFolderWithoutPermission, ReplacesAFile,
                            WritesNoFileWithoutPermission, RenamesAFile,
                            RenamingReplacesNoOtherFile, RenamingFailsWithTheReason);

}  // namespace vantle
