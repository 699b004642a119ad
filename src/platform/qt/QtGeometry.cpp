#include "platform/qt/QtGeometry.h"

#include <cmath>

namespace vantle {

Rect toScreenCoordinates(const QRect& rect, int primaryHeight) {
    return {{static_cast<double>(rect.x()),
             static_cast<double>(primaryHeight - rect.y() - rect.height())},
            {static_cast<double>(rect.width()), static_cast<double>(rect.height())}};
}

Point toScreenCoordinates(const QPoint& point, int primaryHeight) {
    return {static_cast<double>(point.x()), static_cast<double>(primaryHeight - point.y())};
}

QRect fromScreenCoordinates(const Rect& rect, int primaryHeight) {
    return {static_cast<int>(std::lround(rect.minX())),
            primaryHeight - static_cast<int>(std::lround(rect.maxY())),
            static_cast<int>(std::lround(rect.size.width)),
            static_cast<int>(std::lround(rect.size.height))};
}

}  // namespace vantle
