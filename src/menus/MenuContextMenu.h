#pragma once

#include <functional>
#include <memory>

#include "menus/MenuWindow.h"
#include "platform/ContextMenu.h"

namespace vantle {

/// A context menu that the program draws itself. The window is made for the first menu.
class MenuContextMenu final : public ContextMenu {
public:
    /// Returns the overlay that contains what the menu points to; may return null.
    using Host = std::function<Overlay*()>;

    explicit MenuContextMenu(Host host);
    ~MenuContextMenu() override;

    void show(const Menu& menu, const Rect& anchor, std::function<void()> onClosed) override;
    void close() override;

    /// Returns null before the first menu.
    MenuWindow* window() const { return window_.get(); }

private:
    const Host host_;
    std::unique_ptr<MenuWindow> window_;
};

}  // namespace vantle
