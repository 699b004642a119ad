#include "platform/linux/AutostartLoginItem.h"

#include <unistd.h>

#include <cerrno>
#include <sstream>
#include <string_view>

#include "platform/linux/SystemFailure.h"
#include "platform/linux/WholeFile.h"

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

bool says(const std::string& entry, std::string_view line) {
    std::istringstream lines(entry);
    for (std::string one; std::getline(lines, one);)
        if (one == line) return true;
    return false;
}

}  // namespace

LoginItem::Status AutostartLoginItem::status() const {
    const auto entry = readWholeFile(entry_, largestEntry);
    const bool isEnabled = entry && says(entry.value(), "[Desktop Entry]") &&
                           !says(entry.value(), "Hidden=true") &&
                           !says(entry.value(), "X-GNOME-Autostart-enabled=false");
    return isEnabled ? Status::enabled : Status::notRegistered;
}

Outcome AutostartLoginItem::registerItem() {
    return replaceWholeFile(entry_,
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
    if (unlink(entry_.path().c_str()) == 0 || errno == ENOENT) return {};
    return systemFailure(errno, entry_.path());
}

}  // namespace vantle
