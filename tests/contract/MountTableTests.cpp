#include <gtest/gtest.h>

#include <filesystem>

#include "TemporaryFolder.h"
#include "TextFile.h"
#include "fakes/FakeEnvironment.h"
#include "platform/linux/LinuxFileManager.h"
#include "platform/linux/MountTable.h"

namespace vantle {
namespace {

class MountTableTest : public testing::Test {
protected:
    MountTableTest() {
        writeText(present,
                  "/dev/a / ext4 rw 0 0\nserver:/x /mnt/nas nfs4 rw 0 0\n"
                  "systemd-1 /mnt/later autofs rw 0 0\n"
                  "me@host: /home/me/My\\040Host fuse.sshfs rw 0 0\n"
                  "/dev/b /mnt/stick fuseblk rw 0 0\n"
                  "systemd-1 /mnt/twice autofs rw 0 0\n/dev/c /mnt/twice xfs rw 0 0\n");
        writeText(expected,
                  "# places\n/dev/a / ext4 defaults 0 1\n/dev/s none swap sw 0 0\n"
                  "server:/x /mnt/nas nfs4 defaults 0 0\n"
                  "server:/y /mnt/other nfs4 noauto 0 0\n");
    }
    MountTable table() const { return MountTable(files()); }
    MountFiles files() const { return {present.path(), expected.path()}; }
    bool isRemote(const std::string& path) const { return table().isRemote(Url::file(path)); }
    bool isUnmounted(const std::string& path) const { return table().isUnmounted(Url::file(path)); }

    TemporaryFolder folder;
    Url present = folder / "mounts";
    Url expected = folder / "fstab";
};

TEST_F(MountTableTest, AnExpectedMountThatIsMissingIsUnmounted) {
    EXPECT_TRUE(isUnmounted("/mnt/other"));
    EXPECT_TRUE(isUnmounted("/mnt/other/Pictures/Screenshots"));
    EXPECT_FALSE(isUnmounted("/mnt/otherwise"));
    EXPECT_FALSE(isUnmounted("/mnt/nas/Pictures"));
    EXPECT_FALSE(isUnmounted("/mnt/later/Pictures"));
    EXPECT_FALSE(isUnmounted("/home/me"));
    EXPECT_FALSE(isUnmounted("/"));
}

TEST_F(MountTableTest, FileSystemsOfServersAndProgramsAreRemote) {
    EXPECT_TRUE(isRemote("/mnt/nas"));
    EXPECT_TRUE(isRemote("/mnt/nas/Pictures"));
    EXPECT_TRUE(isRemote("/mnt/later"));
    EXPECT_TRUE(isRemote("/home/me/My Host/a"));
    EXPECT_FALSE(isRemote("/mnt/stick/a"));
    EXPECT_FALSE(isRemote("/mnt/twice/a"));
    EXPECT_FALSE(isRemote("/home/me"));
}

TEST_F(MountTableTest, ALinkBelongsToTheMountOfItsTarget) {
    std::filesystem::create_symlink("/mnt/other/Pictures", (folder / "far").path());
    std::filesystem::create_symlink("far/deeper", (folder / "Pictures").path());
    std::filesystem::create_symlink("round", (folder / "round").path());
    EXPECT_TRUE(isUnmounted((folder / "Pictures").appending("Screenshots").path()));
    EXPECT_FALSE(isUnmounted((folder / "round").path()));
}

TEST_F(MountTableTest, WithoutTablesEverythingIsLocal) {
    std::filesystem::remove(present.path());
    std::filesystem::remove(expected.path());
    EXPECT_FALSE(isRemote("/mnt/nas"));
    EXPECT_FALSE(isUnmounted("/mnt/other"));
    EXPECT_FALSE(MountTable().isUnmounted(folder.url()));
}

TEST_F(MountTableTest, MakesNoFolderAtAMissingMount) {
    const Url point = folder / "point";
    std::filesystem::create_directory(point.path());
    writeText(expected, "server:/y " + point.path() + " nfs4 noauto 0 0\n");
    LinuxFileManager manager(
        fakes::FakeEnvironment(), [](const Url&) { return false; }, files());
    EXPECT_TRUE(manager.createDirectory(point.appending("Screenshots")).has_value());
    EXPECT_TRUE(std::filesystem::is_empty(point.path()));
    EXPECT_FALSE(manager.createDirectory(folder / "elsewhere").has_value());
}

}  // namespace
}  // namespace vantle
