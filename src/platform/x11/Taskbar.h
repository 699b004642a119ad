#pragma once

#include <QWindow>

namespace vantle::x11 {

/// Keeps a window that is about to be shown out of the taskbar and the window switcher.
void keepOutOfTaskbar(const QWindow& window);

/// Shows a window that is on the screen in the taskbar and the window switcher, or removes it.
void setInTaskbar(const QWindow& window, bool isPresent);

}  // namespace vantle::x11
