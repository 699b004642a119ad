#pragma once

#include <QRegion>
#include <QWindow>

namespace vantle::wayland {

/// Lets a window take pointer input only inside `region` (points from its top left). Does nothing
/// on other display servers, or while the window is not created.
void setInputRegion(QWindow& window, const QRegion& region);

/// Returns true if the compositor can blur what is behind a part of a window.
bool offersBlur();

/// Blurs what is behind `region` (points from the top left of `window`), and nothing elsewhere.
void setBlurBehind(QWindow& window, const QRegion& region);

}  // namespace vantle::wayland
