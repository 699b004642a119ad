#pragma once

#include <QWindow>

namespace vantle::x11 {

/// Keeps a window that is about to be shown out of the taskbar and the window switcher.
void keepOutOfTaskbar(const QWindow& window);

/// Has a window that is shown stand in them, or not.
void setInTaskbar(const QWindow& window, bool isPresent);

}  // namespace vantle::x11
