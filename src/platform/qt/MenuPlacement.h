#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QWindow>
#include <functional>

#include "platform/qt/Overlay.h"

namespace vantle {

/// The place that a menu points to.
struct MenuAnchor {
    QRect frame;                ///< In Qt's screen coordinates.
    QWindow* window = nullptr;  ///< The managed window that contains the place; may be null.
    QPointer<Overlay> overlay;  ///< The overlay that contains the place; may be null.
};

/// Places a menu of the program and gives it the pointer and the keyboard. DisplayServer makes one
/// for each menu's window. Main thread only.
class MenuPlacement {
public:
    static constexpr int gap = 4;   ///< Points between the menu and what it points to.
    static constexpr int edge = 6;  ///< Points between the menu and the sides of the screen.

    virtual ~MenuPlacement() = default;

    /// Shows the window beside the anchor. The menu itself is drawn in the part `plate` of the
    /// window, with its shadow around it. Keys that other windows receive meanwhile are sent to the
    /// menu.
    virtual void show(const MenuAnchor& anchor, const QRect& plate) = 0;

    /// Hides the window and releases the pointer and the keyboard.
    virtual void hide() = 0;

    /// Returns true if show() has placed the menu above its anchor.
    virtual bool isAboveAnchor() const { return false; }

    /// Call it when the window is on the screen.
    virtual void exposed() {}

    /// Called when the display server ends the menu, for instance because the user clicks
    /// elsewhere. The menu must then be hidden.
    std::function<void()> onDismissed;
};

}  // namespace vantle
