#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>

#include "TemporaryFolder.h"
#include "TextFile.h"
#include "fakes/FakeEnvironment.h"
#include "platform/linux/LinuxFileManager.h"
#include "platform/linux/UserDirectories.h"

namespace vantle {
namespace {

const Url home = Url::file("/home/user");

std::optional<std::string> desktopIn(std::string_view text) {
    const auto found = UserDirectories::parse(text, "XDG_DESKTOP_DIR", home);
    return found ? std::optional(found->path()) : std::nullopt;
}

TEST(UserDirectoriesTest, AFolderIsBelowHomeOrAbsolute) {
    EXPECT_EQ(desktopIn("XDG_DESKTOP_DIR=\"$HOME/Schreibtisch\"\n"), "/home/user/Schreibtisch");
    EXPECT_EQ(desktopIn("XDG_DESKTOP_DIR=\"/mnt/desk top\"\n"), "/mnt/desk top");
    EXPECT_EQ(desktopIn("XDG_DESKTOP_DIR=\"$HOME/\"\n"), "/home/user");
    EXPECT_EQ(desktopIn("XDG_DESKTOP_DIR=\"$HOME\"\n"), "/home/user");
}

TEST(UserDirectoriesTest, TheLastUsableLineCounts) {
    EXPECT_EQ(desktopIn("XDG_DESKTOP_DIR=\"/a\"\nXDG_DESKTOP_DIR=\"/b\"\n"
                        "XDG_DESKTOP_DIR=\"relative\"\n"),
              "/b");
}

TEST(UserDirectoriesTest, BlanksAndEscapesAreAllowed) {
    EXPECT_EQ(desktopIn("  XDG_DESKTOP_DIR \t=  \"/a\\\"b\\\\c\"  # mine\n"), "/a\"b\\c");
}

TEST(UserDirectoriesTest, IgnoresInvalidLines) {
    for (const auto* text :
         {"", "# XDG_DESKTOP_DIR=\"/a\"", "XDG_DESKTOP_DIR=/a", "XDG_DESKTOP_DIR=\"/a",
          "XDG_DESKTOP_DIRECTORY=\"/a\"", "XDG_DESKTOP_DIR=\"$HOMEWARD/a\"",
          "XDG_DESKTOP_DIR=\"~/a\"", "XDG_PICTURES_DIR=\"/a\"", "XDG_DESKTOP_DIR=\"\""})
        EXPECT_EQ(desktopIn(text), std::nullopt) << text;
}

class UserDirectoriesOnDisk : public testing::Test {
protected:
    Url desktop() const { return *files().desktopDirectory(); }
    LinuxFileManager files() const {
        return LinuxFileManager(variables, [](const Url&) { return false; });
    }

    TemporaryFolder folder;
    fakes::FakeEnvironment variables{{"HOME", folder.url().path()}};
};

TEST_F(UserDirectoriesOnDisk, TheDesktopIsInTheHomeFolderWithoutSettings) {
    EXPECT_EQ(files().homeDirectory(), folder.url());
    EXPECT_EQ(desktop(), folder / "Desktop");
}

TEST_F(UserDirectoriesOnDisk, ReadsTheSettingsEachTime) {
    std::filesystem::create_directory((folder / ".config").path());
    const Url settings = (folder / ".config").appending("user-dirs.dirs");
    for (const std::string name : {"Bureau", "Escritorio"}) {
        writeText(settings, "XDG_DESKTOP_DIR=\"$HOME/" + name + "\"\n");
        EXPECT_EQ(desktop(), folder / name);
    }
}

TEST_F(UserDirectoriesOnDisk, TheConfigurationFolderMayBeElsewhere) {
    std::filesystem::create_directory((folder / "settings").path());
    variables["XDG_CONFIG_HOME"] = (folder / "settings").path();
    writeText((folder / "settings").appending("user-dirs.dirs"), "XDG_DESKTOP_DIR=\"/desk\"\n");
    EXPECT_EQ(desktop(), Url::file("/desk"));
    variables["XDG_CONFIG_HOME"] = "relative";
    EXPECT_EQ(desktop(), folder / "Desktop");
}

TEST_F(UserDirectoriesOnDisk, UsesTheAccountsHomeWithoutTheVariable) {
    variables = {};
    EXPECT_TRUE(files().homeDirectory().path().starts_with('/'));
    variables["HOME"] = "relative";
    EXPECT_TRUE(files().homeDirectory().path().starts_with('/'));
}

}  // namespace
}  // namespace vantle
