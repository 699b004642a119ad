#include "platform/linux/screenshots/Notations.h"

#include <algorithm>

#include "platform/linux/screenshots/Escapes.h"
#include "support/Split.h"

namespace vantle {
namespace {

constexpr std::string_view scheme = "file:";
constexpr auto popup = "Popup";

/// Accepts invalid addresses too: a tool may write one with percent signs that are not encoded.
std::string pathOf(const std::string& text) {
    if (!text.starts_with(scheme)) return text;
    if (const auto folder = Url::fromFileAddress(text)) return folder->path();
    std::string path = text.substr(scheme.size());
    if (path.starts_with("//")) path.erase(0, 2);
    return path;
}

std::optional<std::string> address(const Url& folder) {
    return folder.address();
}

/// Returns the actions without the one that shows a notification.
std::string quietActions(const std::string& actions) {
    std::string quiet;
    for (const auto& action : split(actions, '|'))
        if (action != popup) quiet += (quiet.empty() ? "" : "|") + action;
    return quiet;
}

}  // namespace

FolderNotation addressOrPath() {
    return {.read = pathOf, .write = address};
}

FolderNotation xfceAddress() {
    return {.read = [](const std::string& text) { return pathOf(fromBackslashEscapes(text)); },
            .write = address};
}

FolderNotation kdeAddress(const Environment& environment) {
    const auto read = [environment](const std::string& text) {
        const std::string plain = expandingVariables(fromBackslashEscapes(text), environment);
        return pathOf(plain.starts_with('/') ? "file://" + plain : plain);
    };
    return {.read = read, .write = address};
}

FolderNotation pathOfQt() {
    return {.read = [](const std::string& text) { return fromQtEscapes(text); },
            .write = [](const Url& folder) { return toQtEscapes(folder.path()); }};
}

PreviewNotation trueOrFalse() {
    return {.read = [](const std::string& text) { return text != "false" && text != "0"; },
            .write = [](const std::string&, bool shows) { return shows ? "true" : "false"; }};
}

PreviewNotation kdePopupAction() {
    return {.read =
                [](const std::string& text) {
                    const auto actions = split(text, '|');
                    return std::ranges::find(actions, popup) != actions.end();
                },
            .write =
                [](const std::string& text, bool shows) {
                    const std::string quiet = quietActions(text);
                    if (!shows) return quiet;
                    return quiet.empty() ? std::string(popup) : quiet + "|" + popup;
                }};
}

}  // namespace vantle
