#include "screens/FolderPicker.h"

#include <utility>

#include "support/Localization.h"

namespace vantle {

std::string FolderPicker::displayName(const Url& folder) const {
    const Url homeDirectory = context_.files.homeDirectory();
    const std::string& home = homeDirectory.path();
    const std::string& path = folder.path();
    if (path == home) return "~";
    if (home == "/" || !path.starts_with(home + '/')) return path;
    return '~' + path.substr(home.size());
}

MenuItem FolderPicker::place(std::string title, const Url& folder) {
    return {.title = std::move(title), .action = [&settings = context_.settings, folder] {
                settings.setScreenshotFolder(folder);
            }};
}

Menu FolderPicker::menu() {
    const Url home = context_.files.homeDirectory();
    Menu menu{
        .title = localized("FolderPicker", "Change"),
        .items = {place(localized("FolderPicker", "Desktop (macOS default)"),
                        context_.settings.defaultScreenshotFolder()),
                  place("~/Pictures/Screenshots", home.appending("Pictures/Screenshots")),
                  place("~/Screenshots", home.appending("Screenshots")),
                  {.kind = MenuItem::Kind::separator},
                  {.title = localized("FolderPicker", "Choose…"), .action = [this] { choose(); }}}};
    if (const auto previous = context_.settings.previousScreenshotFolder()) {
        menu.items.push_back({.kind = MenuItem::Kind::separator});
        menu.items.push_back(
            {.title = filled(localized("FolderPicker", "Restore %1"), {displayName(*previous)}),
             .action = [&settings = context_.settings] { settings.restoreScreenshotFolder(); }});
    }
    return menu;
}

void FolderPicker::choose() {
    context_.application.activate();
    const FolderRequest request{
        .directory = context_.settings.screenshotFolder.value(),
        .acceptLabel = localized("FolderPicker", "Use This Folder"),
        .message = localized("FolderPicker",
                             "Choose where macOS should save screenshots and screen recordings.")};
    context_.chooser.choose(request,
                            [&settings = context_.settings](const std::optional<Url>& folder) {
                                if (folder) settings.setScreenshotFolder(*folder);
                            });
}

}  // namespace vantle
