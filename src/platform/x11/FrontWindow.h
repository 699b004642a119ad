#pragma once

#include <QWindow>

namespace vantle::x11 {

/// Returns true if the window is on another workspace than the user.
bool isOnOtherWorkspace(const QWindow& window);

/// Brings a window to the user's workspace and above all others, and gives it the keyboard. Uses
/// the stored activation token, if there is one.
void bringToFront(QWindow& window);

}  // namespace vantle::x11
