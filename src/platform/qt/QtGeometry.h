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

/// Where a screen stands in the pixels of the X server. Its corner is the same there as in Qt's
/// coordinates, and its points count from that.
QRect frameInPixels(const QScreen& screen);

/// A place in those pixels, in Qt's coordinates: on that screen, or on the one that has the pixel.
QPoint fromPixels(const QPoint& pixel, const QScreen& screen);
QPoint fromPixels(const QPoint& pixel);

/// Where the primary screen stands in Qt's coordinates; empty while there is none.
QRect primaryScreenGeometry();

/// On which that place is, else the primary one. There is one. Main thread only.
QScreen& screenAt(const QPoint& place);

}  // namespace vantle
