#include "platform/linux/GnomeTrayExtension.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <string>

#include "platform/linux/UserDirectories.h"
#include "support/Split.h"

namespace vantle {
namespace {

// The extension's identifiers in the shell: its author's, and the one of Debian and Ubuntu.
constexpr std::array identifiers{"appindicatorsupport@rgcjonas.gmail.com",
                                 "ubuntu-appindicators@ubuntu.com"};

/// Checks the first name only: other desktops list GNOME too, but after their own name.
bool isGnomeShell(const Environment& environment) {
    constexpr std::array names{"GNOME", "GNOME-Classic", "ubuntu"};
    const auto desktops = split(environment("XDG_CURRENT_DESKTOP").value_or(""), ':');
    return !desktops.empty() && std::ranges::find(names, desktops.front()) != names.end();
}

bool holdsExtension(const Url& data) {
    const Url extensions = data.appending("gnome-shell/extensions");
    return std::ranges::any_of(identifiers, [&extensions](const char* identifier) {
        return access(extensions.appending(identifier).path().c_str(), F_OK) == 0;
    });
}

}  // namespace

std::optional<TrayExtension> gnomeTrayExtension(const Environment& environment) {
    if (!isGnomeShell(environment)) return std::nullopt;
    const UserDirectories directories(environment);
    const bool isInstalled = holdsExtension(directories.data()) ||
                             std::ranges::any_of(directories.systemData(), holdsExtension);
    return TrayExtension{"AppIndicator", "gnome-shell-extension-appindicator", isInstalled};
}

}  // namespace vantle
