#pragma once

#include <QPoint>
#include <QRect>
#include <QScreen>

#include "support/Geometry.h"

namespace vantle {

/// Converts between Qt's screen coordinates (y grows downwards) and the program's (y grows upwards
/// from the bottom left of the primary screen). `primary` is the primary screen's geometry in Qt's
/// coordinates, which need not begin at the origin. Both systems count points.
Rect toScreenCoordinates(const QRect& rect, const QRect& primary);
Point toScreenCoordinates(const QPoint& point, const QRect& primary);
/// Rounds to whole points: each edge goes to the nearest one.
QRect fromScreenCoordinates(const Rect& rect, const QRect& primary);

/// Uses the current primary screen. Main thread only.
QRect fromScreenCoordinates(const Rect& rect);

/// Returns the frame of a screen in the pixels of the X server. The screen's corner is the same
/// there as in Qt's coordinates, and its points count from that corner.
QRect frameInPixels(const QScreen& screen);

/// Converts a place in those pixels to Qt's coordinates: on `screen`, or on the screen that
/// contains the pixel.
QPoint fromPixels(const QPoint& pixel, const QScreen& screen);
QPoint fromPixels(const QPoint& pixel);

/// Returns the geometry of the primary screen in Qt's coordinates; empty while there is none.
QRect primaryScreenGeometry();

/// Returns the screen at that place, or else the primary one. There must be a screen. Main thread
/// only.
QScreen& screenAt(const QPoint& place);

}  // namespace vantle
