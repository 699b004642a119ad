#pragma once

#include <QRegion>
#include <QWindow>

namespace vantle::wayland {

/// Lets a window take pointer input only inside `region` (points from its top left). Does nothing
/// on another display server, or while the window is not there.
void setInputRegion(QWindow& window, const QRegion& region);

/// Whether the compositor blurs what is behind a part of a window for those who ask.
bool offersBlur();

/// Asks for it behind `region` (points from the top left of `window`), and for none elsewhere.
void setBlurBehind(QWindow& window, const QRegion& region);

}  // namespace vantle::wayland
