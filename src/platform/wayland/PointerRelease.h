#pragma once

#include <QWindow>

namespace vantle::wayland {

/// Tells the toolkit that the left button is up. A Wayland compositor does not report the release
/// that ends a drag, and the toolkit would ignore the next press. Main thread only.
void releaseLeftButton(QWindow& window);

}  // namespace vantle::wayland
