#pragma once

#include <QPoint>
#include <QRect>
#include <QScreen>

#include "support/Geometry.h"

namespace vantle {

/// Converts between Qt's screen coordinates (y grows downwards) and the program's (y grows upwards
/// from the bottom left of the primary screen). `primary` is that screen's geometry in Qt's
/// coordinates, where it need not stand at the origin. Both count points.
Rect toScreenCoordinates(const QRect& rect, const QRect& primary);
Point toScreenCoordinates(const QPoint& point, const QRect& primary);
/// To whole points: both edges go to the nearest one.
QRect fromScreenCoordinates(const Rect& rect, const QRect& primary);

/// With the primary screen of this moment. Main thread only.
QRect fromScreenCoordinates(const Rect& rect);

/// A place in the pixels of the X server, in Qt's coordinates.
QPoint fromPixels(const QPoint& pixel);

/// Where the primary screen stands in Qt's coordinates; empty while there is none.
QRect primaryScreenGeometry();

/// On which that place is, else the primary one. There is one. Main thread only.
QScreen& screenAt(const QPoint& place);

}  // namespace vantle
