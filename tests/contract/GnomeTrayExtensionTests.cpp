#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>

#include "TemporaryFolder.h"
#include "fakes/FakeEnvironment.h"
#include "platform/linux/GnomeTrayExtension.h"

namespace vantle {
namespace {

class GnomeTrayExtensionTest : public testing::Test {
protected:
    std::optional<TrayExtension> on(const std::string& desktop) {
        return gnomeTrayExtension(fakes::FakeEnvironment{
            {"XDG_CURRENT_DESKTOP", desktop},
            {"XDG_DATA_HOME", (folder / "own").path()},
            {"XDG_DATA_DIRS", (folder / "first").path() + ":" + (folder / "second").path()}});
    }
    void install(const std::string& place, const std::string& identifier) {
        std::filesystem::create_directories((folder / place).path() + "/gnome-shell/extensions/" +
                                            identifier);
    }

    TemporaryFolder folder;
};

TEST_F(GnomeTrayExtensionTest, TheShellGetsATrayFromAnExtension) {
    for (const auto* desktop : {"GNOME", "ubuntu:GNOME", "GNOME-Classic:GNOME"}) {
        const auto extension = on(desktop);
        ASSERT_TRUE(extension) << desktop;
        EXPECT_EQ(extension->package, "gnome-shell-extension-appindicator");
        EXPECT_FALSE(extension->isInstalled);
    }
}

TEST_F(GnomeTrayExtensionTest, OtherDesktopsHaveATray) {
    for (const auto* desktop : {"", "KDE", "Budgie:GNOME", "GNOME-Flashback:GNOME", "XFCE"})
        EXPECT_FALSE(on(desktop)) << desktop;
}

TEST_F(GnomeTrayExtensionTest, IsFoundInTheUsersFolder) {
    install("own", "appindicatorsupport@rgcjonas.gmail.com");
    EXPECT_TRUE(on("GNOME")->isInstalled);
}

TEST_F(GnomeTrayExtensionTest, IsFoundInTheSystemsFolder) {
    install("second", "ubuntu-appindicators@ubuntu.com");
    EXPECT_TRUE(on("GNOME")->isInstalled);
}

TEST_F(GnomeTrayExtensionTest, AnotherExtensionIsNotATray) {
    install("first", "clock@example.org");
    EXPECT_FALSE(on("GNOME")->isInstalled);
}

}  // namespace
}  // namespace vantle
