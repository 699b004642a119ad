#pragma once

#include <QWindow>

namespace vantle {

/// Raises a shown window above all others and gives it the keyboard, as far as the desktop allows
/// (DisplayServer::bringToFront). No other window of this program stays above it. Main thread only.
void bringToFront(QWindow& window);

/// Does the same with the window of this program that was last in front, if it is still shown and
/// is on the user's current workspace.
void bringLastToFront();

}  // namespace vantle
