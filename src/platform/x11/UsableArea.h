#pragma once

#include <QRect>
#include <QScreen>
#include <vector>

namespace vantle::x11 {

/// The part of a screen that the desktop's own panels leave free, in points. Main thread only.
QRect usableArea(QScreen& screen);

/// What a panel of the desktop reserves for itself, in pixels of the area that all screens make.
struct Strut {
    QRect panel;     ///< Where it stands.
    QRect reserved;  ///< From an edge of that area to the panel's inner edge.
};

/// What the panels on a screen leave of it. One that stands on another screen reserves nothing
/// here, though a strut that begins at the far edge of all screens may reach across this one.
QRect withoutStruts(const QRect& screen, const std::vector<Strut>& struts);

}  // namespace vantle::x11
