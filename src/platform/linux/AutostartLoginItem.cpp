#include "platform/linux/AutostartLoginItem.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <string_view>
#include <utility>

#include "platform/linux/KeyFile.h"
#include "platform/linux/WholeFile.h"
#include "support/Localization.h"
#include "support/Split.h"
#include "support/SystemFailure.h"

namespace vantle {
namespace {

constexpr std::size_t maximumEntrySize = std::size_t{64} * 1024;
constexpr std::string_view entryGroup = "Desktop Entry";

/// Returns the argument as an Exec line holds it: in double quotes, with quotes, backslashes,
/// backquotes and dollar signs escaped. Values are strings, so each backslash is escaped once more,
/// and % is doubled.
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

/// Removes each backslash that escapes the character after it.
std::string withoutEscapes(std::string_view text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && i + 1 < text.size()) ++i;
        plain += text[i];
    }
    return plain;
}

/// Returns the first argument of an Exec line, which is the program.
std::string programOf(const std::string& exec) {
    const std::string line = withoutEscapes(exec);
    if (!line.starts_with('"')) return line.substr(0, line.find(' '));
    std::size_t end = 1;
    while (end < line.size() && line[end] != '"') end += line[end] == '\\' ? 2 : 1;
    std::string program = withoutEscapes(std::string_view(line).substr(1, end - 1));
    for (auto at = program.find("%%"); at != std::string::npos; at = program.find("%%", at + 1))
        program.erase(at, 1);
    return program;
}

/// Looks a program without a path up in $PATH, as the desktop does.
bool canBeStarted(const std::string& program) {
    const auto isProgram = [](const std::string& path) { return access(path.c_str(), X_OK) == 0; };
    if (program.find('/') != std::string::npos) return isProgram(program);
    const char* path = std::getenv("PATH");
    const auto folders = split(path ? path : "/usr/bin:/bin", ':');
    return !program.empty() && std::ranges::any_of(folders, [&](const std::string& folder) {
        return isProgram(folder + '/' + program);
    });
}

/// Returns true if a list such as "GNOME;XFCE;" names one of the desktops.
bool namesAnyOf(const std::string& list, const std::string& desktops) {
    const auto listed = split(list, ';');
    return std::ranges::any_of(split(desktops, ':'), [&](const std::string& desktop) {
        return std::ranges::find(listed, desktop) != listed.end();
    });
}

bool isEnabled(const KeyFile& entry, const std::string& desktops) {
    const auto value = [&entry](std::string_view key) {
        return entry.value(entryGroup, key).value_or("");
    };
    if (!canBeStarted(programOf(value("Exec")))) return false;
    if (entry.value(entryGroup, "OnlyShowIn") && !namesAnyOf(value("OnlyShowIn"), desktops))
        return false;
    return !namesAnyOf(value("NotShowIn"), desktops);
}

bool isSwitchedOff(const KeyFile& entry) {
    return entry.value(entryGroup, "Hidden") == "true" ||
           entry.value(entryGroup, "X-GNOME-Autostart-enabled") == "false";
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
    const auto text = readWholeFile(*entry, maximumEntrySize);
    if (!text) return Status::notRegistered;
    const KeyFile file(text.value());
    if (isSwitchedOff(file)) return Status::refused;
    return isEnabled(file, desktop_) ? Status::enabled : Status::notRegistered;
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
    // Without an entry of the user's, the system's would count.
    if (std::any_of(entries_.begin() + 1, entries_.end(), exists))
        return replaceWholeFile(own, "[Desktop Entry]\nType=Application\nHidden=true\n");
    if (unlink(own.path().c_str()) == 0 || errno == ENOENT) return {};
    return systemFailure(errno, own.path());
}

}  // namespace vantle
