#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QWindow>
#include <functional>

#include "platform/qt/Overlay.h"

namespace vantle {

/// What a menu points to.
struct MenuAnchor {
    QRect frame;                ///< In Qt's screen coordinates.
    QWindow* window = nullptr;  ///< In which it is, where that is one that the desktop manages.
    QPointer<Overlay> overlay;  ///< On which it is, where it is on one.
};

/// How a menu of ours comes to its place and gets the pointer and the keyboard. DisplayServer makes
/// one for each menu's window. Main thread only.
class MenuPlacement {
public:
    static constexpr int gap = 4;   ///< Points between the menu and what it points to.
    static constexpr int edge = 6;  ///< Points between the menu and the sides of the screen.

    virtual ~MenuPlacement() = default;

    /// Shows the window beside the anchor. The menu itself is drawn in its part `plate`; around
    /// that is its shadow. Keys that other windows get meanwhile are sent to the menu's.
    virtual void show(const MenuAnchor& anchor, const QRect& plate) = 0;

    /// Hides the window and lets go of the pointer and the keyboard.
    virtual void hide() = 0;

    /// To be called when the window is on the screen.
    virtual void exposed() {}

    /// Called when the display server ends the menu, as when one clicks elsewhere. The menu is to
    /// be hidden then.
    std::function<void()> onDismissed;
};

}  // namespace vantle
