#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "contract/Locked.h"
#include "contract/LoginItemContract.h"
#include "contract/TemporaryFolder.h"
#include "contract/TextFile.h"
#include "platform/linux/AutostartLoginItem.h"

namespace vantle {
namespace {

using Status = LoginItem::Status;

struct DesktopItem {
    TemporaryFolder folder;
    AutostartLoginItem item{{folder.url()}, "org.example.Program", "/bin/sh"};

    std::unique_ptr<Locked> forbid() {
        return std::make_unique<Locked>(
            folder.url(), std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    }
};

INSTANTIATE_TYPED_TEST_SUITE_P(AutostartLoginItem, LoginItemContract, DesktopItem);

class AutostartLoginItemTest : public testing::Test {
protected:
    std::string entryFor(const std::string& executable) const {
        AutostartLoginItem other({folder.url()}, "org.example.Program", executable);
        EXPECT_EQ(other.registerItem(), std::nullopt);
        return readText(entry);
    }

    TemporaryFolder folder;
    Url entry = folder / "org.example.Program.desktop";
    AutostartLoginItem item{{folder.url()}, "org.example.Program", "/bin/sh"};
};

TEST_F(AutostartLoginItemTest, TheFolderIsMadeWhenItIsMissing) {
    AutostartLoginItem deep({(folder / "config").appending("autostart")}, "org.example.Program",
                            "/bin/sh");
    EXPECT_EQ(deep.registerItem(), std::nullopt);
    EXPECT_EQ(deep.status(), Status::enabled);
}

TEST_F(AutostartLoginItemTest, ThePathOfTheProgramIsQuoted) {
    const auto has = [](const char* line) { return testing::HasSubstr(line); };
    EXPECT_THAT(entryFor("/opt/a b/program"), has("\nExec=\"/opt/a b/program\"\n"));
    EXPECT_THAT(entryFor("/opt/100%/program"), has("\nExec=\"/opt/100%%/program\"\n"));
    EXPECT_THAT(entryFor("/opt/$HOME`\"/program"),
                has("\nExec=\"/opt/\\\\$HOME\\\\`\\\\\"/program\"\n"));
    EXPECT_THAT(entryFor("/opt/a\\b/program"), has("\nExec=\"/opt/a\\\\\\\\b/program\"\n"));
}

TEST_F(AutostartLoginItemTest, AnEntryThatTheUserSwitchedOffIsRefused) {
    for (const auto* off : {"Hidden=true\n", "X-GNOME-Autostart-enabled=false\n"}) {
        ASSERT_EQ(item.registerItem(), std::nullopt);
        writeText(entry, "[Desktop Entry]\nType=Application\nExec=/bin/sh\n" + std::string(off));
        EXPECT_EQ(item.status(), Status::refused);
        EXPECT_EQ(item.registerItem(), std::nullopt);
        EXPECT_EQ(item.status(), Status::enabled);
    }
}

TEST_F(AutostartLoginItemTest, AFileThatIsNoDesktopEntryIsNotRegistered) {
    for (const auto& text : {std::string(), std::string("\0\xff", 2), std::string(1 << 20, 'x')}) {
        writeText(entry, text);
        EXPECT_EQ(item.status(), Status::notRegistered);
    }
    std::filesystem::remove(entry.path());
    std::filesystem::create_directory(entry.path());
    EXPECT_EQ(item.status(), Status::notRegistered);
    EXPECT_NE(item.registerItem(), std::nullopt);
}

TEST_F(AutostartLoginItemTest, AnEntryForOtherDesktopsIsNotRegisteredHere) {
    const AutostartLoginItem onXfce({folder.url()}, "org.example.Program", "/bin/sh",
                                    "ubuntu:XFCE");
    for (const auto& [line, expected] : {std::pair{"OnlyShowIn=GNOME;XFCE;", Status::enabled},
                                         std::pair{"OnlyShowIn=GNOME;", Status::notRegistered},
                                         std::pair{"NotShowIn = KDE;XFCE", Status::notRegistered},
                                         std::pair{"NotShowIn=KDE;", Status::enabled}}) {
        writeText(entry, "[Desktop Entry]\nExec=/bin/sh\n" + std::string(line) + "\n");
        EXPECT_EQ(onXfce.status(), expected) << line;
    }
}

TEST_F(AutostartLoginItemTest, AnEntryThatWouldStartNothingIsNotRegistered) {
    const auto statusOf = [&](const std::string& exec) {
        writeText(entry, "[Desktop Entry]\nType=Application\nExec=" + exec + "\n");
        return item.status();
    };
    EXPECT_EQ(statusOf("/opt/gone/program"), Status::notRegistered) << "its tree was moved";
    EXPECT_EQ(statusOf("\"/opt/gone/program\" --start"), Status::notRegistered);
    EXPECT_EQ(statusOf("no-such-program-anywhere"), Status::notRegistered);
    EXPECT_EQ(statusOf("sh -c true"), Status::enabled);
    EXPECT_EQ(statusOf("\"/bin/sh\" -c true"), Status::enabled);
}

TEST_F(AutostartLoginItemTest, APathWithSpecialCharactersIsReadBack) {
    for (const char* name : {"a b", "100%", "$HOME`\"", "a\\b", "%%f"}) {
        const Url program = folder / name;
        writeText(program, "#!/bin/sh\n");
        std::filesystem::permissions(program.path(), std::filesystem::perms::owner_all);
        AutostartLoginItem odd({folder.url()}, "org.example.Program", program.path());
        EXPECT_EQ(odd.registerItem(), std::nullopt);
        EXPECT_EQ(odd.status(), Status::enabled) << name;
    }
}

TEST_F(AutostartLoginItemTest, OnlyTheKeysOfItsOwnGroupCount) {
    writeText(entry,
              "# Hidden=true\r\n[Desktop Entry]\r\nExec=/bin/sh\r\n"
              "[Desktop Action pause]\r\nHidden=true\r\n");
    EXPECT_EQ(item.status(), Status::enabled);
    writeText(entry, "Exec=/bin/sh\n[Other]\nExec=/bin/sh\n");
    EXPECT_EQ(item.status(), Status::notRegistered);
}

class ShadowedLoginItemTest : public testing::Test {
protected:
    Url entryIn(const TemporaryFolder& of) const { return of / "org.example.Program.desktop"; }

    const std::string entry = "[Desktop Entry]\nType=Application\nExec=/bin/sh\n";
    TemporaryFolder user;
    TemporaryFolder system;
    AutostartLoginItem item{{user.url(), system.url()}, "org.example.Program", "/bin/sh"};
};

TEST_F(ShadowedLoginItemTest, TheSystemsEntryCountsIfTheUserHasNone) {
    writeText(entryIn(system), entry);
    EXPECT_EQ(item.status(), Status::enabled);
}

TEST_F(ShadowedLoginItemTest, TheUsersEntryShadowsTheSystems) {
    writeText(entryIn(system), entry);
    writeText(entryIn(user), entry + "Hidden=true\n");
    EXPECT_EQ(item.status(), Status::refused);
    writeText(entryIn(user), "");
    EXPECT_EQ(item.status(), Status::notRegistered);
}

TEST_F(ShadowedLoginItemTest, UnregisteringHidesTheSystemsEntryAndLeavesIt) {
    writeText(entryIn(system), entry);
    ASSERT_EQ(item.unregisterItem(), std::nullopt);
    EXPECT_EQ(item.status(), Status::refused);
    EXPECT_EQ(readText(entryIn(system)), entry);
    ASSERT_EQ(item.registerItem(), std::nullopt);
    EXPECT_EQ(item.status(), Status::enabled);
}

TEST_F(ShadowedLoginItemTest, ReportsTheRealStateIfTheFolderCannotBeWritten) {
    writeText(entryIn(system), entry);
    std::filesystem::permissions(system.url().path(), std::filesystem::perms::group_exec,
                                 std::filesystem::perm_options::add);
    const Locked locked(user.url(),
                        std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    EXPECT_NE(item.unregisterItem(), std::nullopt);
    EXPECT_EQ(item.status(), Status::enabled);
}

}  // namespace
}  // namespace vantle
