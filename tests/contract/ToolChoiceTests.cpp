#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "platform/linux/screenshots/ToolChoice.h"

namespace vantle {
namespace {

const std::vector<std::string> all{"spectacle",       "xfce4-screenshooter", "gnome-screenshot",
                                   "mate-screenshot", "flameshot",           "ksnip",
                                   "screengrab",      "gnome-shell"};

std::string chosen(const std::string& desktop, const std::vector<std::string>& installed) {
    return chooseScreenshotTool(desktop, [&](const std::string& program) {
        return std::ranges::find(installed, program) != installed.end();
    });
}

TEST(ToolChoiceTest, EachDesktopHasItsTool) {
    for (const auto& [desktop, tool] :
         {std::pair("KDE", "spectacle"), std::pair("XFCE", "xfce4-screenshooter"),
          std::pair("X-Cinnamon", "gnome-screenshot"), std::pair("MATE", "mate-screenshot"),
          std::pair("LXQt", "screengrab"), std::pair("GNOME", "gnome-shell"),
          std::pair("ubuntu:GNOME", "gnome-shell")})
        EXPECT_EQ(chosen(desktop, all), tool) << desktop;
}

TEST(ToolChoiceTest, TheFirstKnownDesktopDecides) {
    EXPECT_EQ(chosen("pop:GNOME:KDE", all), "gnome-shell");
    EXPECT_EQ(chosen("GNOME-Flashback:GNOME", all), "gnome-screenshot");
    EXPECT_EQ(chosen("Budgie:GNOME", {"gnome-shell", "ksnip"}), "ksnip");
}

TEST(ToolChoiceTest, AToolThatIsNotInstalledIsNotChosen) {
    EXPECT_EQ(chosen("KDE", {"flameshot", "ksnip"}), "flameshot");
    EXPECT_EQ(chosen("KDE", {"ksnip", "gnome-screenshot"}), "ksnip");
    EXPECT_EQ(chosen("XFCE", {}), "none");
    EXPECT_EQ(chosen("GNOME", {}), "gnome-shell") << "it runs";
}

TEST(ToolChoiceTest, OtherDesktopsUseOnlyToolsOfNoDesktop) {
    EXPECT_EQ(chosen("sway", all), "flameshot");
    EXPECT_EQ(chosen("", all), "flameshot");
    EXPECT_EQ(chosen("", {"gnome-screenshot", "spectacle"}), "none");
}

}  // namespace
}  // namespace vantle
