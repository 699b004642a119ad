#pragma once

#include <functional>
#include <initializer_list>
#include <utility>

#include "platform/ContextMenu.h"

namespace vantle::fakes {

/// A context menu that a test chooses from.
class FakeContextMenu final : public ContextMenu {
public:
    void show(const Menu& shownMenu, const Rect& shownAnchor,
              std::function<void()> onClosed) override {
        close();
        menu = shownMenu;
        anchor = shownAnchor;
        onClosed_ = std::move(onClosed);
    }
    void close() override { end(nullptr); }

    bool isOpen() const { return onClosed_ != nullptr; }

    /// Chooses an item: the index in the menu and, for an item of a submenu, the indexes in the
    /// submenus.
    void choose(std::initializer_list<std::size_t> path) {
        const auto* items = &menu.items;
        const MenuItem* item = nullptr;
        for (const auto index : path) {
            item = &items->at(index);
            items = &item->items;
        }
        end(item->action);
    }

    Menu menu;  ///< The latest one.
    Rect anchor;

private:
    void end(const std::function<void()>& chosen) {
        const auto action = chosen;
        const auto closed = std::exchange(onClosed_, nullptr);
        if (!closed) return;
        closed();
        if (action) action();
    }

    std::function<void()> onClosed_;  ///< Null while no menu is open.
};

}  // namespace vantle::fakes
