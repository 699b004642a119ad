#pragma once

#include <QRect>
#include <QScreen>
#include <vector>

namespace vantle::x11 {

/// Returns the part of a screen that the desktop's own panels leave free, in points. Main thread
/// only.
QRect usableArea(QScreen& screen);

/// The space that a panel of the desktop reserves for itself, in pixels of the area that all
/// screens form together.
struct Strut {
    QRect panel;     ///< The frame of the panel.
    QRect reserved;  ///< From an edge of that area to the panel's inner edge.
};

/// Returns the part of `screen` that its panels leave free. A panel on another screen reserves
/// nothing here, even if its strut reaches across this screen because it begins at the far edge of
/// all screens.
QRect withoutStruts(const QRect& screen, const std::vector<Strut>& struts);

}  // namespace vantle::x11
