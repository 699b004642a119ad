#include "platform/linux/screenshots/ToolChoice.h"

#include <map>

#include "support/Split.h"

namespace vantle {
namespace {

constexpr auto gnomeShell = "gnome-shell";

const std::map<std::string, std::string>& toolsOfDesktops() {
    static const std::map<std::string, std::string> tools{{"Budgie", "gnome-screenshot"},
                                                          {"Cinnamon", "gnome-screenshot"},
                                                          {"GNOME", gnomeShell},
                                                          {"GNOME-Classic", gnomeShell},
                                                          {"GNOME-Flashback", "gnome-screenshot"},
                                                          {"KDE", "spectacle"},
                                                          {"LXQt", "screengrab"},
                                                          {"MATE", "mate-screenshot"},
                                                          {"Unity", "gnome-screenshot"},
                                                          {"X-Cinnamon", "gnome-screenshot"},
                                                          {"XFCE", "xfce4-screenshooter"}};
    return tools;
}

}  // namespace

std::string chooseScreenshotTool(
    const std::string& currentDesktop,
    const std::function<bool(const std::string& program)>& isInstalled) {
    for (const auto& desktop : split(currentDesktop, ':')) {
        const auto found = toolsOfDesktops().find(desktop);
        if (found == toolsOfDesktops().end()) continue;
        // GNOME's shell is running, so it is not looked for: it may be installed outside $PATH.
        if (found->second == gnomeShell || isInstalled(found->second)) return found->second;
        break;
    }
    for (const std::string tool : {"flameshot", "ksnip"})
        if (isInstalled(tool)) return tool;
    return noScreenshotTool;
}

}  // namespace vantle
