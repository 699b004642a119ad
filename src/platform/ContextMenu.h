#pragma once

#include <functional>

#include "platform/Menu.h"
#include "support/Geometry.h"

namespace vantle {

/// The menu of a thing on the card. Main thread only.
class ContextMenu {
public:
    virtual ~ContextMenu() = default;

    /// Opens the menu below `anchor` (in screen coordinates, as in Screens), or above it if there
    /// is no room. A menu that is still open closes first. Calls `onClosed` once, never inside this
    /// call, when the menu has closed, and then performs the action of the chosen item if there is
    /// one. A menu for a user of the keyboard has its first item as the current one.
    virtual void show(const Menu& menu, const Rect& anchor, std::function<void()> onClosed) = 0;

    /// Closes the menu that is open, without a choice.
    virtual void close() = 0;
};

}  // namespace vantle
