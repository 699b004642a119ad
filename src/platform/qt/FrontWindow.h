#pragma once

#include <QWindow>

namespace vantle {

/// Brings a window that is shown above all others and gives it the keyboard, as far as the desktop
/// allows (DisplayServer::bringToFront). No other window of this program stays above it. Main
/// thread only.
void bringToFront(QWindow& window);

/// The same with the window of this program that the user has had in front last, if there is one
/// that is shown on the workspace on which the user is.
void bringLastToFront();

}  // namespace vantle
