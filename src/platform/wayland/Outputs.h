#pragma once

#include <QRect>
#include <QScreen>

namespace vantle::wayland {

/// The part of a screen that the desktop's own panels leave free. Its size is what the compositor
/// says. Where it begins no protocol tells: it is given at the screen's upper left corner, and so
/// are the places of layer surfaces counted.
QRect usableArea(QScreen& screen);

/// The screen on which the compositor opens what nobody places: that of the pointer or of the
/// focused window, as it holds it. Null when it does not say. With one screen nothing is asked.
QScreen* focusedScreen();

}  // namespace vantle::wayland
