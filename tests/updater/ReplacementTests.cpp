#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "contract/KilledAtStop.h"
#include "contract/PrivateMounts.h"
#include "contract/TemporaryFolder.h"
#include "contract/TextFile.h"
#include "updater/Archive.h"
#include "updater/Installation.h"
#include "updater/InstalledTree.h"
#include "updater/Preparation.h"
#include "updater/Replacement.h"
#include "updater/Staging.h"

namespace vantle::updater {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

/// A tree of some files, and another tree beside it.
class ReplacementTest : public testing::Test {
protected:
    ReplacementTest() {
        makeTree(tree, "old");
        writeText(Url::file(tree / "share/vantle/manifest"),
                  "-  bin/vantle\n-  lib/vantle/a.so\n-  share/vantle/release\n");
    }

    static void makeTree(const fs::path& path, const std::string& contents) {
        for (const auto* name : {"bin/vantle", "lib/vantle/a.so", "share/vantle/release"}) {
            fs::create_directories((path / name).parent_path());
            writeText(Url::file(path / name), contents);
        }
    }
    /// Returns what all of its files contain, or an empty string if one is missing or differs.
    static std::string contentsOf(const fs::path& path) {
        std::string all;
        for (const auto* name : {"bin/vantle", "lib/vantle/a.so", "share/vantle/release"}) {
            if (!fs::exists(path / name)) return {};
            const std::string text = readText(Url::file(path / name));
            if (!all.empty() && text != all) return {};
            all = text;
        }
        return all;
    }
    Staging open() { return std::move(Staging::open(tree).value()); }

    TemporaryFolder place;
    const fs::path tree = fs::path(place.url().path()) / "app";
    const fs::path folder = fs::path(place.url().path()) / ".app-update";
};

TEST_F(ReplacementTest, TheStagingFolderIsForItsOwnerOnly) {
    const Staging staging = open();
    struct stat status {};
    ASSERT_EQ(stat(folder.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0700u);
    EXPECT_EQ(staging.folder(), folder);
}

TEST_F(ReplacementTest, AStagingFolderThatOthersCanUseIsRefused) {
    fs::create_directory(folder);
    chmod(folder.c_str(), 0777);
    const auto staging = Staging::open(tree);
    ASSERT_FALSE(staging);
    EXPECT_THAT(staging.failure().message, HasSubstr("is not a folder that only you can access"));
}

TEST_F(ReplacementTest, OnlyOneUpdaterCanUseItAtATime) {
    const Staging staging = open();
    const auto other = Staging::open(tree);
    ASSERT_FALSE(other);
    EXPECT_EQ(other.failure().code, EBUSY);
}

TEST_F(ReplacementTest, FoldersCanBeExchangedHere) {
    const Staging staging = open();
    EXPECT_EQ(tryExchange(staging), std::nullopt);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 1);
}

TEST_F(ReplacementTest, ReplacesAndRestores) {
    const Staging staging = open();
    makeTree(staging.next(), "new");
    makeTree(staging.previous(), "oldest");
    ASSERT_EQ(replaceTree(tree, staging), std::nullopt);
    EXPECT_EQ(contentsOf(tree), "new");
    EXPECT_EQ(contentsOf(staging.previous()), "old");
    EXPECT_FALSE(fs::exists(staging.next()));
    ASSERT_EQ(restoreTree(tree, staging), std::nullopt);
    EXPECT_EQ(contentsOf(tree), "old");
    EXPECT_FALSE(fs::exists(staging.previous()));
}

TEST_F(ReplacementTest, TheTreeStaysWithoutANextOne) {
    const Staging staging = open();
    EXPECT_TRUE(replaceTree(tree, staging).has_value());
    EXPECT_EQ(contentsOf(tree), "old");
}

TEST_F(ReplacementTest, DiscardingDoesNotFollowLinks) {
    const Staging staging = open();
    const fs::path outside = fs::path(place.url().path()) / "outside";
    makeTree(outside, "of the user");
    fs::create_directory_symlink(outside, staging.next());
    ASSERT_EQ(staging.discard(staging.next()), std::nullopt);
    EXPECT_FALSE(fs::exists(fs::symlink_status(staging.next())));
    EXPECT_EQ(contentsOf(outside), "of the user");
}

TEST_F(ReplacementTest, ATreeIsCompleteAfterAKillAtAnyStop) {
    int stops = 0;
    int replaced = 0;
    for (End end = End::killed; end == End::killed; ++stops) {
        for (const auto& path : {tree, folder}) fs::remove_all(path);
        makeTree(tree, "old");
        {
            const Staging staging = open();
            makeTree(staging.next(), "new");
            makeTree(staging.previous(), "oldest");
        }
        end = runAndKill([&] { return !replaceTree(tree, open()); }, stops);
        SCOPED_TRACE("killed at stop " + std::to_string(stops));
        const std::string now = contentsOf(tree);
        EXPECT_TRUE(now == "old" || now == "new") << now;
        if (now == "new") ++replaced;
        // An incomplete tree never has one of these names.
        for (const auto* name : {"next", "previous"})
            EXPECT_EQ(fs::exists(folder / name), !contentsOf(folder / name).empty()) << name;
    }
    EXPECT_GT(stops, 20);
    EXPECT_GT(replaced, 1);
}

TEST_F(ReplacementTest, ATreeIsCompleteAfterAKillDuringARollback) {
    int stops = 0;
    for (End end = End::killed; end == End::killed; ++stops) {
        for (const auto& path : {tree, folder}) fs::remove_all(path);
        makeTree(tree, "new");
        {
            const Staging staging = open();
            makeTree(staging.previous(), "old");
        }
        end = runAndKill([&] { return !restoreTree(tree, open()); }, stops);
        const std::string now = contentsOf(tree);
        EXPECT_TRUE(now == "old" || now == "new") << "killed at stop " << stops;
    }
    EXPECT_GT(stops, 10);
}

TEST_F(ReplacementTest, AKillDuringThePreparationLeavesNoIncompleteNextTree) {
    const std::string archive = readText(Url::file(VANTLE_SAMPLE_ARCHIVE));
    int stops = 0;
    for (End end = End::killed; end == End::killed; stops += 3) {
        end = runAndKill(
            [&] {
                const Staging staging = open();
                return !checkPlace(tree, staging) && !makeNext(staging, archive, "1.1");
            },
            stops);
        SCOPED_TRACE("killed at stop " + std::to_string(stops));
        EXPECT_EQ(contentsOf(tree), "old");
        const auto wrong =
            verifyTree(folder / "next", "1.1", platformName(UpdateItem::Installation::tree));
        EXPECT_TRUE(!wrong || !fs::exists(folder / "next"));
    }
    EXPECT_GT(stops, 50);
    EXPECT_TRUE(fs::exists(folder / "next"));
}

/// Runs on its own disk.
class FullDiskTest : public ReplacementTest {
protected:
    void SetUp() override {
        if (!PrivateMounts::enter(place.url()) || !PrivateMounts::mountVolume(volume))
            GTEST_SKIP() << "this user may not mount anything";
        makeTree(small, "old");
    }

    const Url volume = place / "volume";
    const fs::path small = fs::path(volume.path()) / "app";
};

TEST_F(FullDiskTest, UnpackingFailsWithAMessageOnAFullDisk) {
    const std::string archive = readText(Url::file(VANTLE_SAMPLE_ARCHIVE));
    const Staging staging = std::move(Staging::open(small).value());
    bool hasFailed = false;
    bool hasSucceeded = false;
    // From a full disk to one with room for everything.
    for (int filled = 1000; filled >= 0; filled -= 20) {
        fs::create_directory(staging.unpacking());
        const Url filler = volume.appending("filler");
        writeText(filler, std::string(static_cast<std::size_t>(filled) * 1024, 'x'));
        const auto failure = unpack(archive, staging.unpacking(), {1 << 20, 100});
        if (failure) {
            hasFailed = true;
            EXPECT_EQ(failure->code, ENOSPC);
        }
        hasSucceeded |= !failure;
        EXPECT_EQ(contentsOf(small), "old");
        EXPECT_EQ(staging.discard(staging.unpacking()), std::nullopt);
        fs::remove(filler.path());
    }
    EXPECT_TRUE(hasFailed);
    EXPECT_TRUE(hasSucceeded);
}

TEST_F(FullDiskTest, AFullDiskDoesNotPreventAReplacement) {
    const Staging staging = std::move(Staging::open(small).value());
    makeTree(staging.next(), "new");
    const std::string block(4096, 'x');
    std::ofstream filler(volume.appending("filler").path());
    while (filler.write(block.data(), 4096).flush()) continue;
    EXPECT_EQ(replaceTree(small, staging), std::nullopt);
    EXPECT_EQ(contentsOf(small), "new");
    EXPECT_EQ(restoreTree(small, staging), std::nullopt);
    EXPECT_EQ(contentsOf(small), "old");
}

}  // namespace
}  // namespace vantle::updater
