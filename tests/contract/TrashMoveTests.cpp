#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>
#include <filesystem>
#include <regex>
#include <string>
#include <vector>

#include "KilledAtStop.h"
#include "Locked.h"
#include "PrivateMounts.h"
#include "TemporaryFolder.h"
#include "TextFile.h"
#include "platform/linux/TrashMove.h"

namespace vantle {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::MatchesRegex;

const std::string contents = "every byte of it";

std::vector<std::string> namesIn(const Url& folder) {
    std::vector<std::string> names;
    std::error_code ignored;
    for (const auto& entry : fs::directory_iterator(folder.path(), ignored))
        names.push_back(entry.path().filename());
    return names;
}

class TrashMoveTest : public testing::Test {
protected:
    TrashMoveTest() { fs::create_directory(folder.path()); }

    Url save(const std::string& name, const std::string& text = contents) {
        const Url file = folder.appending(name);
        writeText(file, text);
        return file;
    }
    Outcome move(const Url& file) {
        const auto moved = moveToTrash(file, data);
        if (!moved) return moved.failure();
        inTrash = moved.value();
        return {};
    }
    /// Returns the original path that the .trashinfo file of a trashed file holds.
    static std::string storedPath(const Url& trash, const std::string& name) {
        const std::string text = readText(trash.appending("info/" + name + ".trashinfo"));
        std::smatch match;
        return std::regex_search(text, match, std::regex("\nPath=(.*)\n")) ? match.str(1) : "";
    }
    bool exists(const Url& file) { return fs::exists(fs::symlink_status(file.path())); }

    TemporaryFolder place;
    const Url folder = place / "folder";
    const Url data = place / "data";
    const Url trash = data.appending("Trash");
    Url inTrash;  ///< Where move() has put the latest file.
};

TEST_F(TrashMoveTest, KeepsContentsNameAndOriginalPath) {
    const Url file = save("shot.png");
    const std::time_t before = std::time(nullptr);
    ASSERT_EQ(move(file), std::nullopt);
    EXPECT_FALSE(exists(file));
    EXPECT_EQ(readText(trash.appending("files/shot.png")), contents);
    const std::string info = readText(trash.appending("info/shot.png.trashinfo"));
    std::tm date{};
    const auto at = info.find("DeletionDate=");
    ASSERT_NE(strptime(info.c_str() + at, "DeletionDate=%Y-%m-%dT%H:%M:%S\n", &date), nullptr);
    date.tm_isdst = -1;
    EXPECT_LE(std::abs(std::mktime(&date) - before), 60);
    EXPECT_EQ(info.substr(0, at), "[Trash Info]\nPath=" + file.path() + "\n");
}

TEST_F(TrashMoveTest, NamesOfAnyBytesAreEncoded) {
    const std::string name = "50% \xff new\nline # ?\u00e4.png";
    ASSERT_EQ(move(save(name)), std::nullopt);
    EXPECT_THAT(namesIn(trash.appending("files")), ElementsAre(name));
    EXPECT_EQ(storedPath(trash, name),
              folder.path() + "/50%25%20%FF%20new%0Aline%20%23%20%3F%C3%A4.png");
}

TEST_F(TrashMoveTest, TheLongestNameHasAnInformationFile) {
    const std::string name = std::string(251, 'n') + ".png";
    ASSERT_EQ(move(save(name)), std::nullopt);
    const auto names = namesIn(trash.appending("files"));
    ASSERT_EQ(names.size(), 1u);
    EXPECT_EQ(names[0], std::string(241, 'n') + ".png");
    EXPECT_EQ(storedPath(trash, names[0]), folder.appending(name).path());
}

TEST_F(TrashMoveTest, ALongNameIsNotCutInsideACharacter) {
    std::string name = "x";
    while (name.size() < 245) name += "\u00e4";
    ASSERT_EQ(move(save(name + ".png")), std::nullopt);
    EXPECT_THAT(namesIn(trash.appending("files")), ElementsAre(MatchesRegex("x(\u00e4)+\\.png")));
}

TEST_F(TrashMoveTest, AFileWithATakenNameGetsAnotherName) {
    for (const auto* text : {"first", "second", "third"})
        ASSERT_EQ(move(save("shot.png", text)), std::nullopt);
    EXPECT_EQ(readText(trash.appending("files/shot.png")), "first");
    EXPECT_EQ(readText(trash.appending("files/shot.2.png")), "second");
    EXPECT_EQ(readText(trash.appending("files/shot.3.png")), "third");
    EXPECT_EQ(storedPath(trash, "shot.3.png"), folder.appending("shot.png").path());
}

TEST_F(TrashMoveTest, AFileWithoutInformationIsNotOverwritten) {
    fs::create_directories(trash.appending("files").path());
    writeText(trash.appending("files/shot.png"), "of somebody");
    ASSERT_EQ(move(save("shot.png")), std::nullopt);
    EXPECT_EQ(readText(trash.appending("files/shot.png")), "of somebody");
    EXPECT_EQ(readText(trash.appending("files/shot.2.png")), contents);
    EXPECT_THAT(namesIn(trash.appending("info")), ElementsAre("shot.2.png.trashinfo"));
}

TEST_F(TrashMoveTest, AFileInALinkedFolderIsStoredWithItsRealPath) {
    save("shot.png");
    fs::create_directory_symlink(folder.path(), (place / "link").path());
    ASSERT_EQ(move(place / "link/shot.png"), std::nullopt);
    EXPECT_EQ(storedPath(trash, "shot.png"), folder.appending("shot.png").path());
}

TEST_F(TrashMoveTest, ALinkIsMovedWithoutItsTarget) {
    const Url target = save("target.png");
    const Url link = folder.appending("link.png");
    fs::create_symlink(target.path(), link.path());
    ASSERT_EQ(move(link), std::nullopt);
    EXPECT_FALSE(exists(link));
    EXPECT_EQ(readText(target), contents);
}

TEST_F(TrashMoveTest, TheTrashIsMadeForItsOwnerOnly) {
    ASSERT_EQ(move(save("shot.png")), std::nullopt);
    for (const auto* name : {"", "files", "info"}) {
        struct stat status {};
        ASSERT_EQ(stat(trash.appending(name).path().c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 0777, 0700u) << name;
    }
}

TEST_F(TrashMoveTest, AMissingFileIsAFailureAndLeavesNothing) {
    const auto failure = move(folder.appending("gone.png"));
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->code, ENOENT);
    EXPECT_THAT(namesIn(trash.appending("info")), IsEmpty());
}

TEST_F(TrashMoveTest, AMissingFolderIsAFailure) {
    const auto failure = move(place / "gone/shot.png");
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->code, ENOENT);
}

TEST_F(TrashMoveTest, AFileInAReadOnlyFolderStays) {
    const Url file = save("shot.png");
    {
        const Locked locked(folder, fs::perms::owner_read | fs::perms::owner_exec);
        const auto failure = move(file);
        ASSERT_TRUE(failure.has_value());
        EXPECT_EQ(failure->code, EACCES);
    }
    EXPECT_EQ(readText(file), contents);
    EXPECT_THAT(namesIn(trash.appending("info")), IsEmpty());
}

TEST_F(TrashMoveTest, TheFileStaysWithoutATrash) {
    const Url file = save("shot.png");
    writeText(data, "a file where the folder should be");
    EXPECT_TRUE(move(file).has_value());
    EXPECT_EQ(readText(file), contents);
}

TEST_F(TrashMoveTest, ATrashThatLeadsElsewhereIsNotFollowed) {
    const Url file = save("shot.png");
    fs::create_directories((place / "elsewhere/files").path());
    fs::create_directories(data.path());
    fs::create_directory_symlink((place / "elsewhere").path(), trash.path());
    EXPECT_TRUE(move(file).has_value());
    EXPECT_EQ(readText(file), contents);
}

TEST_F(TrashMoveTest, ReturnsWhereTheFileIsInTheTrash) {
    for (const auto* name : {"files/shot.png", "files/shot.2.png"}) {
        ASSERT_EQ(move(save("shot.png")), std::nullopt);
        EXPECT_EQ(inTrash, trash.appending(name));
    }
}

TEST_F(TrashMoveTest, AFilePutBackIsAsItWasAndLeavesNothingInTheTrash) {
    const Url file = save("50% \xff new\nline.png");
    const auto modified = fs::last_write_time(file.path());
    ASSERT_EQ(move(file), std::nullopt);
    ASSERT_EQ(putBackFromTrash(inTrash, file), std::nullopt);
    EXPECT_EQ(readText(file), contents);
    EXPECT_EQ(fs::last_write_time(file.path()), modified);
    EXPECT_THAT(namesIn(trash.appending("files")), IsEmpty());
    EXPECT_THAT(namesIn(trash.appending("info")), IsEmpty());
}

TEST_F(TrashMoveTest, AFileIsNotPutBackOverAnotherAndStaysInTheTrash) {
    const Url file = save("shot.png");
    ASSERT_EQ(move(file), std::nullopt);
    save("shot.png", "newer");
    const auto failure = putBackFromTrash(inTrash, file);
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->code, EEXIST);
    EXPECT_EQ(readText(file), "newer");
    EXPECT_EQ(readText(inTrash), contents);
    EXPECT_EQ(storedPath(trash, "shot.png"), file.path());
}

TEST_F(TrashMoveTest, AFileWhoseFolderHasGoneStaysInTheTrash) {
    const Url file = save("shot.png");
    ASSERT_EQ(move(file), std::nullopt);
    fs::remove(folder.path());
    const auto failure = putBackFromTrash(inTrash, file);
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->code, ENOENT);
    EXPECT_EQ(readText(inTrash), contents);
}

TEST_F(TrashMoveTest, ALinkIsPutBackWithoutItsTarget) {
    const Url target = save("target.png");
    const Url link = folder.appending("link.png");
    fs::create_symlink(target.path(), link.path());
    ASSERT_EQ(move(link), std::nullopt);
    ASSERT_EQ(putBackFromTrash(inTrash, link), std::nullopt);
    EXPECT_EQ(fs::read_symlink(link.path()), target.path());
}

/// Files on another volume than the home folder.
class VolumeTrashTest : public TrashMoveTest {
protected:
    void SetUp() override {
        if (!PrivateMounts::enter(place.url()) || !PrivateMounts::mountVolume(data) ||
            !PrivateMounts::mountVolume(volume))
            GTEST_SKIP() << "this user may not mount anything";
        fs::create_directories(inside.path());
    }

    Url saveInside(const std::string& name) {
        const Url file = inside.appending(name);
        writeText(file, contents);
        return file;
    }
    /// Prevents that the volume gets its own Trash.
    void preventTrash() { writeText(own, "in the way"); }
    /// Fills a volume so that no contents fit on it.
    static void fill(const Url& folder) {
        const std::string block(4096, 'x');
        const Url file = folder.appending("filler");
        for (std::ofstream out(file.path()); out.write(block.data(), 4096).flush();) continue;
    }

    const std::string user = std::to_string(geteuid());
    const Url volume = place / "volume";
    const Url inside = volume.appending("a/b");
    const Url own = volume.appending(".Trash-" + user);
};

TEST_F(VolumeTrashTest, GoesToTheVolumesOwnTrashWithARelativePath) {
    ASSERT_EQ(move(saveInside("sh%t.png")), std::nullopt);
    EXPECT_EQ(readText(own.appending("files/sh%t.png")), contents);
    EXPECT_EQ(storedPath(own, "sh%t.png"), "a/b/sh%25t.png");
    EXPECT_FALSE(exists(trash));
}

TEST_F(VolumeTrashTest, GoesToTheSharedTrashIfThereIsOne) {
    const Url shared = volume.appending(".Trash");
    fs::create_directory(shared.path());
    chmod(shared.path().c_str(), 01777);
    ASSERT_EQ(move(saveInside("shot.png")), std::nullopt);
    EXPECT_EQ(readText(shared.appending(user + "/files/shot.png")), contents);
    EXPECT_EQ(storedPath(shared.appending(user), "shot.png"), "a/b/shot.png");
    EXPECT_FALSE(exists(own));
}

TEST_F(VolumeTrashTest, ASharedTrashInWhichOthersCanMeddleIsNotUsed) {
    const Url shared = volume.appending(".Trash");
    fs::create_directory(shared.path());
    chmod(shared.path().c_str(), 0777);
    ASSERT_EQ(move(saveInside("shot.png")), std::nullopt);
    EXPECT_THAT(namesIn(shared), IsEmpty());
    EXPECT_EQ(readText(own.appending("files/shot.png")), contents);
}

TEST_F(VolumeTrashTest, ASharedTrashThatIsALinkIsNotUsed) {
    fs::create_directory(volume.appending("elsewhere").path());
    chmod(volume.appending("elsewhere").path().c_str(), 01777);
    fs::create_directory_symlink("elsewhere", volume.appending(".Trash").path());
    ASSERT_EQ(move(saveInside("shot.png")), std::nullopt);
    EXPECT_THAT(namesIn(volume.appending("elsewhere")), IsEmpty());
    EXPECT_EQ(readText(own.appending("files/shot.png")), contents);
}

TEST_F(VolumeTrashTest, ATrashOfAnotherUserIsNotUsed) {
    fs::create_directory(own.path());
    if (chown(own.path().c_str(), 12345, 12345) != 0) GTEST_SKIP() << "only root can give it away";
    ASSERT_EQ(move(saveInside("shot.png")), std::nullopt);
    EXPECT_THAT(namesIn(own), IsEmpty());
    EXPECT_EQ(readText(trash.appending("files/shot.png")), contents);
}

TEST_F(VolumeTrashTest, IsCopiedToTheHomeTrashIfTheVolumeHasNone) {
    preventTrash();
    const Url file = saveInside("shot.png");
    fs::permissions(file.path(), fs::perms::owner_read | fs::perms::group_read);
    const auto modified = fs::last_write_time(file.path());
    ASSERT_EQ(move(file), std::nullopt);
    EXPECT_FALSE(exists(file));
    const Url copy = trash.appending("files/shot.png");
    EXPECT_EQ(readText(copy), contents);
    EXPECT_EQ(storedPath(trash, "shot.png"), file.path());
    EXPECT_EQ(fs::last_write_time(copy.path()), modified);
    EXPECT_EQ(fs::status(copy.path()).permissions(), fs::perms::owner_read | fs::perms::group_read);
}

TEST_F(VolumeTrashTest, IsPutBackFromTheVolumesOwnTrash) {
    const Url file = saveInside("shot.png");
    ASSERT_EQ(move(file), std::nullopt);
    EXPECT_EQ(inTrash, own.appending("files/shot.png"));
    ASSERT_EQ(putBackFromTrash(inTrash, file), std::nullopt);
    EXPECT_EQ(readText(file), contents);
    EXPECT_THAT(namesIn(own.appending("info")), IsEmpty());
}

TEST_F(VolumeTrashTest, IsPutBackFromTheSharedTrash) {
    const Url shared = volume.appending(".Trash");
    fs::create_directory(shared.path());
    chmod(shared.path().c_str(), 01777);
    const Url file = saveInside("shot.png");
    ASSERT_EQ(move(file), std::nullopt);
    ASSERT_EQ(putBackFromTrash(inTrash, file), std::nullopt);
    EXPECT_EQ(readText(file), contents);
    EXPECT_THAT(namesIn(shared.appending(user + "/info")), IsEmpty());
}

TEST_F(VolumeTrashTest, IsCopiedBackFromTheHomeTrash) {
    preventTrash();
    const Url file = saveInside("shot.png");
    const auto modified = fs::last_write_time(file.path());
    ASSERT_EQ(move(file), std::nullopt);
    ASSERT_EQ(putBackFromTrash(inTrash, file), std::nullopt);
    EXPECT_EQ(readText(file), contents);
    EXPECT_EQ(fs::last_write_time(file.path()), modified);
    EXPECT_THAT(namesIn(trash.appending("files")), IsEmpty());
    EXPECT_THAT(namesIn(trash.appending("info")), IsEmpty());
}

TEST_F(VolumeTrashTest, ACopyBackDoesNotOverwriteAFile) {
    preventTrash();
    const Url file = saveInside("shot.png");
    ASSERT_EQ(move(file), std::nullopt);
    writeText(file, "newer");
    const auto failure = putBackFromTrash(inTrash, file);
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->code, EEXIST);
    EXPECT_EQ(readText(file), "newer");
    EXPECT_EQ(readText(inTrash), contents);
}

TEST_F(VolumeTrashTest, ACopyDoesNotOverwriteAFile) {
    preventTrash();
    fs::create_directories(trash.appending("files").path());
    writeText(trash.appending("files/shot.png"), "of somebody");
    ASSERT_EQ(move(saveInside("shot.png")), std::nullopt);
    EXPECT_EQ(readText(trash.appending("files/shot.png")), "of somebody");
    EXPECT_EQ(readText(trash.appending("files/shot.2.png")), contents);
}

TEST_F(VolumeTrashTest, AFullVolumeDoesNotPreventTheMove) {
    const Url file = saveInside("shot.png");
    fill(volume);
    ASSERT_EQ(move(file), std::nullopt);
    EXPECT_FALSE(exists(file));
    EXPECT_EQ(readText(trash.appending("files/shot.png")), contents);
    EXPECT_THAT(namesIn(own.appending("info")), IsEmpty());
}

TEST_F(VolumeTrashTest, TheFileStaysIfThereIsNoRoomAnywhere) {
    const Url file = saveInside("shot.png");
    fill(volume);
    fill(data);
    const auto failure = move(file);
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->code, ENOSPC);
    EXPECT_EQ(readText(file), contents);
    EXPECT_THAT(namesIn(trash.appending("info")), IsEmpty());
    EXPECT_THAT(namesIn(trash.appending("files")), IsEmpty());
}

TEST_F(VolumeTrashTest, AFileOnAReadOnlyVolumeStays) {
    const Url file = saveInside("shot.png");
    ASSERT_TRUE(PrivateMounts::makeReadOnly(volume));
    const auto failure = move(file);
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->code, EROFS);
    EXPECT_EQ(readText(file), contents);
    EXPECT_FALSE(exists(trash));
}

TEST_F(VolumeTrashTest, ABindMountHasItsOwnTrash) {
    fs::create_directory(data.appending("pictures").path());
    const Url bound = place / "bound";
    ASSERT_TRUE(PrivateMounts::bind(data.appending("pictures"), bound));
    writeText(bound.appending("shot.png"), contents);
    ASSERT_EQ(move(bound.appending("shot.png")), std::nullopt);
    const Url itsTrash = bound.appending(".Trash-" + user);
    EXPECT_EQ(readText(itsTrash.appending("files/shot.png")), contents);
    EXPECT_EQ(storedPath(itsTrash, "shot.png"), "shot.png");
}

/// Kills a process that moves a file, at each of its system calls in turn.
class KilledMoveTest : public VolumeTrashTest {
protected:
    /// Expects the complete file at its old place, or in the Trash together with its .trashinfo
    /// file.
    void expectSafe(const Url& file, const Url& where, const std::string& stored) {
        const bool stayed = exists(file) && readText(file) == contents;
        bool arrived = false;
        for (const auto& name : namesIn(where.appending("files")))
            arrived |= readText(where.appending("files/" + name)) == contents &&
                       storedPath(where, name) == stored;
        EXPECT_TRUE(stayed || arrived);
    }

    /// Repeats the move, killed one stop later each time, until it succeeds. The Trash already has
    /// a file of that name.
    void killAtEveryStep(const Url& file, const Url& where, const std::string& stored) {
        fs::create_directories(where.appending("files").path());
        fs::create_directories(where.appending("info").path());
        int calls = 0;
        for (End end = End::killed; end == End::killed; ++calls) {
            fs::remove_all(where.path());
            fs::create_directories(where.appending("files").path());
            writeText(where.appending("files/shot.png"), "of somebody");
            writeText(file, contents);
            end = runAndKill([&] { return !move(file); }, calls);
            SCOPED_TRACE("killed at stop " + std::to_string(calls));
            expectSafe(file, where, stored);
            EXPECT_EQ(readText(where.appending("files/shot.png")), "of somebody");
        }
        // The process stopped at system calls, so it was killed in the middle of its work.
        EXPECT_GT(calls, 20);
    }
};

TEST_F(KilledMoveTest, ARenamedFileIsNeverLost) {
    killAtEveryStep(inside.appending("shot.png"), own, "a/b/shot.png");
}

TEST_F(KilledMoveTest, ACopiedFileIsNeverLost) {
    preventTrash();
    const Url file = inside.appending("shot.png");
    killAtEveryStep(file, trash, file.path());
}

}  // namespace
}  // namespace vantle
