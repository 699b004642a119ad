#include "platform/linux/AutostartLoginItem.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <map>
#include <optional>
#include <sstream>
#include <string_view>
#include <utility>

#include "platform/linux/WholeFile.h"
#include "support/SystemFailure.h"

namespace vantle {
namespace {

constexpr std::size_t largestEntry = std::size_t{64} * 1024;

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

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(" \t\r");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

/// The parts of a text, without empty ones.
std::vector<std::string> split(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);)
        if (!part.empty()) parts.push_back(part);
    return parts;
}

using EntryKeys = std::map<std::string, std::string, std::less<>>;

/// The keys of the group of a desktop entry; absent when there is no such group.
std::optional<EntryKeys> keysOf(const std::string& entry) {
    std::optional<EntryKeys> keys;
    bool isInGroup = false;
    for (const auto& raw : split(entry, '\n')) {
        const auto line = trimmed(raw);
        if (line.starts_with('[')) isInGroup = line == "[Desktop Entry]";
        if (isInGroup && !keys) keys.emplace();
        const auto equals = line.find('=');
        if (!isInGroup || equals == std::string_view::npos) continue;
        keys->insert_or_assign(std::string(trimmed(line.substr(0, equals))),
                               std::string(trimmed(line.substr(equals + 1))));
    }
    return keys;
}

/// Whether one of the desktops stands in a list such as "GNOME;XFCE;".
bool names(const std::string& list, const std::string& desktops) {
    const auto listed = split(list, ';');
    return std::ranges::any_of(split(desktops, ':'), [&](const std::string& desktop) {
        return std::ranges::find(listed, desktop) != listed.end();
    });
}

bool isEnabled(const EntryKeys& keys, const std::string& desktops) {
    const auto value = [&keys](std::string_view key) {
        const auto found = keys.find(key);
        return found == keys.end() ? std::string() : found->second;
    };
    if (value("Exec").empty() || value("Hidden") == "true" ||
        value("X-GNOME-Autostart-enabled") == "false")
        return false;
    if (keys.contains("OnlyShowIn") && !names(value("OnlyShowIn"), desktops)) return false;
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
    const auto keys = text ? keysOf(text.value()) : std::nullopt;
    return keys && isEnabled(*keys, desktop_) ? Status::enabled : Status::notRegistered;
}

Outcome AutostartLoginItem::registerItem() {
    return replaceWholeFile(entries_.front(),
                            "[Desktop Entry]\n"
                            "Type=Application\n"
                            "Name=Vantle\n"
                            "Comment=Keeps each new screenshot at hand\n"
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
