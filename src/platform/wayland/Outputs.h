#pragma once

#include <QRect>
#include <QScreen>

namespace vantle::wayland {

/// Returns the part of a screen that the desktop's own panels leave free. The compositor tells only
/// its size, not its position: the rectangle begins at the screen's upper left corner, and the
/// places of layer surfaces are counted from there, too.
QRect usableArea(QScreen& screen);

/// Returns the screen on which the compositor opens surfaces that name no output: usually the one
/// with the pointer or the focused window. Returns null if the compositor does not tell or if there
/// is only one screen.
QScreen* focusedScreen();

}  // namespace vantle::wayland
