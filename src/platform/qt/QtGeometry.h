#pragma once

#include <QPoint>
#include <QRect>

#include "support/Geometry.h"

namespace vantle {

/// Converts between Qt's screen coordinates (y downwards from the top left of the primary screen)
/// and the program's (y upwards from its bottom left). `primaryHeight` is that screen's height;
/// both count points.
Rect toScreenCoordinates(const QRect& rect, int primaryHeight);
Point toScreenCoordinates(const QPoint& point, int primaryHeight);
QRect fromScreenCoordinates(const Rect& rect, int primaryHeight);

}  // namespace vantle
