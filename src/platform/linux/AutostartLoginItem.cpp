#include "platform/linux/AutostartLoginItem.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <string_view>
#include <utility>

#include "platform/linux/KeyFile.h"
#include "platform/linux/WholeFile.h"
#include "support/Localization.h"
#include "support/Split.h"
#include "support/SystemFailure.h"

namespace vantle {
namespace {

constexpr std::size_t largestEntry = std::size_t{64} * 1024;
constexpr std::string_view entryGroup = "Desktop Entry";

/// An argument of an Exec line: in quotes, which themselves and backslash, backquote and dollar are
/// escaped; the backslashes are escaped once more by the rules for text, and % stands doubled.
std::string execArgument(const std::string& argument) {
    std::string quoted = "\"";
    for (const char character : argument) {
        if (character == '"' || character == '`' || character == '$') quoted += "\\\\";
        if (character == '\\') quoted += "\\\\\\";
        if (character == '%') quoted += '%';
        quoted += character;
    }
    return quoted + '"';
}

/// Whether one of the desktops stands in a list such as "GNOME;XFCE;".
bool names(const std::string& list, const std::string& desktops) {
    const auto listed = split(list, ';');
    return std::ranges::any_of(split(desktops, ':'), [&](const std::string& desktop) {
        return std::ranges::find(listed, desktop) != listed.end();
    });
}

bool isEnabled(const KeyFile& entry, const std::string& desktops) {
    const auto value = [&entry](std::string_view key) {
        return entry.value(entryGroup, key).value_or("");
    };
    if (value("Exec").empty() || value("Hidden") == "true" ||
        value("X-GNOME-Autostart-enabled") == "false")
        return false;
    if (entry.value(entryGroup, "OnlyShowIn") && !names(value("OnlyShowIn"), desktops))
        return false;
    return !names(value("NotShowIn"), desktops);
}

bool exists(const Url& file) {
    return access(file.path().c_str(), F_OK) == 0;
}

}  // namespace

AutostartLoginItem::AutostartLoginItem(const std::vector<Url>& folders,
                                       const std::string& identifier, std::string executable,
                                       std::string desktop)
    : executable_(std::move(executable)), desktop_(std::move(desktop)) {
    for (const Url& folder : folders) entries_.push_back(folder.appending(identifier + ".desktop"));
}

LoginItem::Status AutostartLoginItem::status() const {
    const auto entry = std::ranges::find_if(entries_, exists);
    if (entry == entries_.end()) return Status::notRegistered;
    const auto text = readWholeFile(*entry, largestEntry);
    const bool counts = text && isEnabled(KeyFile(text.value()), desktop_);
    return counts ? Status::enabled : Status::notRegistered;
}

Outcome AutostartLoginItem::registerItem() {
    return replaceWholeFile(entries_.front(),
                            "[Desktop Entry]\n"
                            "Type=Application\n"
                            "Name=Vantle\n"
                            "Comment=" +
                                localized("LoginItem", "Keeps each new screenshot at hand") +
                                "\n"
                                "Exec=" +
                                execArgument(executable_) +
                                "\n"
                                "X-GNOME-Autostart-enabled=true\n");
}

Outcome AutostartLoginItem::unregisterItem() {
    const Url& own = entries_.front();
    // Without the user's entry the system's would count.
    if (std::any_of(entries_.begin() + 1, entries_.end(), exists))
        return replaceWholeFile(own, "[Desktop Entry]\nType=Application\nHidden=true\n");
    if (unlink(own.path().c_str()) == 0 || errno == ENOENT) return {};
    return systemFailure(errno, own.path());
}

}  // namespace vantle
