#pragma once

#include <QRegion>
#include <QWindow>

namespace vantle::x11 {

/// Lets a window take pointer input only inside `region` (points from its top left).
void setInputRegion(QWindow& window, const QRegion& region);

/// Returns true if a compositor shows windows with their transparency.
bool isComposited();

/// Returns true if the compositor can blur what is behind a part of a window.
bool offersBlur();

/// Blurs what is behind `region` (points from the top left of `window`), and nothing elsewhere.
void setBlurBehind(QWindow& window, const QRegion& region);

}  // namespace vantle::x11
