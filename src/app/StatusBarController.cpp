#include "app/StatusBarController.h"

#include <algorithm>
#include <utility>

#include "support/DisplayName.h"
#include "support/Localization.h"

namespace vantle {
namespace {

MenuItem action(std::string title, std::function<void()> perform, std::string keyEquivalent = {}) {
    return {.title = std::move(title),
            .keyEquivalent = std::move(keyEquivalent),
            .action = std::move(perform)};
}

MenuItem label(std::string title) {
    return {.title = std::move(title), .isEnabled = false};
}

MenuItem separator() {
    return {.kind = MenuItem::Kind::separator};
}

/// Returns the whole picture, centred in an area of that size.
MenuImage fitted(const ImagePointer& picture, const Size& room) {
    const double scale =
        std::min(room.width / picture->size.width, room.height / picture->size.height);
    const Size size{picture->size.width * scale, picture->size.height * scale};
    return {
        picture, room, {{(room.width - size.width) / 2, (room.height - size.height) / 2}, size}};
}

}  // namespace

StatusBarController::StatusBarController(StatusItem& item, FileOpener& opener,
                                         Application& application, const Settings& settings)
    : item_(item), opener_(opener), application_(application), settings_(settings) {
    if (!item_.setImage("photo.on.rectangle.angled", "Vantle")) item_.setTitle("V");
    item_.setAutosaveName("VantleStatusItem");
    item_.menuNeedsUpdate = [this] { return menuNeedsUpdate(); };
    item_.show();
}

StatusBarController::~StatusBarController() {
    item_.menuNeedsUpdate = nullptr;
}

Menu StatusBarController::menuNeedsUpdate() {
    Menu menu{"Vantle", {}};
    const auto captures = recent();
    if (captures.empty())
        menu.items.push_back(label(localized("StatusBarController", "No captures yet")));
    else
        addCaptures(menu, captures);
    menu.items.push_back(separator());
    menu.items.push_back(action(paused_ ? localized("StatusBarController", "Resume Vantle")
                                        : localized("StatusBarController", "Pause Vantle"),
                                [this] { togglePause(); }));
    menu.items.push_back(action(
        localized("StatusBarController", "Settings…"), [this] { onSettings(); }, ","));
    menu.items.push_back(action(localized("StatusBarController", "Check for Updates…"),
                                [this] { onCheckForUpdates(); }));
    menu.items.push_back(separator());
    menu.items.push_back(action(
        localized("StatusBarController", "Quit Vantle"), [this] { application_.terminate(); },
        "q"));
    return menu;
}

void StatusBarController::addCaptures(Menu& menu, const std::vector<CapturePointer>& captures) {
    menu.items.push_back(label(localized("StatusBarController", "Recent Captures")));
    for (std::size_t i = 0; i < std::min(captures.size(), maximumListed); ++i)
        menu.items.push_back(itemFor(captures[i]));
    if (canBringBack())
        menu.items.push_back(
            action(localized("StatusBarController", "Bring back"), [this] { onBringBack(); }));
    menu.items.push_back(separator());
    menu.items.push_back(action(localized("StatusBarController", "Open Screenshots Folder"),
                                [this] { openFolder(); }));
}

MenuItem StatusBarController::itemFor(const CapturePointer& capture) {
    MenuItem item = action(displayName(capture->fileName()), [this, capture] { onShow(capture); });
    if (const auto& thumbnail = capture->thumbnail()) item.image = fitted(thumbnail, thumbnailSize);
    return item;
}

void StatusBarController::openFolder() const {
    opener_.open(settings_.screenshotFolder.value());
}

void StatusBarController::togglePause() {
    paused_ = !paused_;
    item_.setAppearsDisabled(paused_);
    item_.menuChanged();
    onPause(paused_);
}

}  // namespace vantle
