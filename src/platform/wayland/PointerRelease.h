#pragma once

#include <QWindow>

namespace vantle::wayland {

/// Tells the toolkit that the left button is up. A Wayland compositor keeps the release that ends a
/// drag to itself, and the toolkit would take the next press for nothing new. Main thread
/// only.
void releaseLeftButton(QWindow& window);

}  // namespace vantle::wayland
