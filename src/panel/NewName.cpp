#include "panel/NewName.h"

#include <string_view>
#include <utility>

#include "support/DisplayName.h"
#include "support/Localization.h"
#include "support/Url.h"

namespace vantle {
namespace {

/// File systems limit names to this number of bytes.
constexpr std::size_t maximumLength = 255;

std::string withoutSurroundingSpaces(const std::string& text) {
    constexpr std::string_view spaces = " \t\n\r";
    const auto first = text.find_first_not_of(spaces);
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(spaces) - first + 1);
}

/// Returns the extension with its dot; empty if the name has none.
std::string extensionOf(const std::string& fileName) {
    return fileName.substr(changeablePart(fileName).size());
}

/// Returns why a file cannot have this name; empty if it can.
std::string refusalOf(const std::string& name) {
    if (name.find('/') != std::string::npos)
        return localized("NewName", "The name cannot contain “/”.");
    if (name.starts_with('.'))
        return localized("NewName", "A name that begins with a full stop would hide the file.");
    // Exactly these characters are not displayed as they are.
    if (displayName(name) != name)
        return localized("NewName",
                         "The name cannot contain line breaks or other control characters.");
    if (name.size() > maximumLength) return localized("NewName", "The name is too long.");
    return {};
}

}  // namespace

std::string changeablePart(const std::string& fileName) {
    const Url file = Url::file("/" + fileName);
    const auto extension = file.pathExtension();
    return extension.empty() ? fileName
                             : fileName.substr(0, fileName.size() - extension.size() - 1);
}

NewName newName(const std::string& fileName, const std::string& typed) {
    const std::string current = changeablePart(fileName);
    // A name that cannot be displayed as it is must not change if the user only looks at it.
    if (typed == current || typed == displayName(current)) return {};
    const std::string name = withoutSurroundingSpaces(typed);
    if (name.empty() || name == current) return {};
    const std::string whole = name + extensionOf(fileName);
    std::string refusal = refusalOf(whole);
    if (!refusal.empty()) return {{}, std::move(refusal)};
    return {whole, {}};
}

}  // namespace vantle
