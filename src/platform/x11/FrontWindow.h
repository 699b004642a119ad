#pragma once

#include <QWindow>

namespace vantle::x11 {

/// Whether the window is on another workspace than the user.
bool isOnOtherWorkspace(const QWindow& window);

/// Brings a window to the workspace on which the user is, above all others, and gives it the
/// keyboard, with the activation token that is kept.
void bringToFront(QWindow& window);

}  // namespace vantle::x11
