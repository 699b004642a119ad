#pragma once

#include <QRegion>
#include <QWindow>

namespace vantle::x11 {

/// Lets a window take pointer input only inside `region` (points from its top left).
void setInputRegion(QWindow& window, const QRegion& region);

/// Whether a compositor shows windows with their transparency.
bool isComposited();

/// Whether the compositor blurs what is behind a part of a window for those who ask.
bool offersBlur();

/// Asks for a blur behind `region` (points from the top left of `window`), and for none elsewhere.
void setBlurBehind(QWindow& window, const QRegion& region);

}  // namespace vantle::x11
