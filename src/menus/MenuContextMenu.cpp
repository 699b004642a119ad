#include "menus/MenuContextMenu.h"

#include <utility>

#include "platform/qt/QtGeometry.h"

namespace vantle {

MenuContextMenu::MenuContextMenu(Host host) : host_(std::move(host)) {}
MenuContextMenu::~MenuContextMenu() = default;

void MenuContextMenu::show(const Menu& menu, const Rect& anchor, std::function<void()> onClosed) {
    if (!window_) window_ = std::make_unique<MenuWindow>();
    window_->open(menu, {fromScreenCoordinates(anchor), nullptr, host_()},
                  [onClosed = std::move(onClosed)](std::optional<int>) { onClosed(); });
}

void MenuContextMenu::close() {
    if (window_) window_->closeMenu();
}

}  // namespace vantle
