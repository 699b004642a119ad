#include "platform/qt/QtGeometry.h"

#include <QGuiApplication>
#include <QScreen>
#include <cmath>

namespace vantle {
namespace {

int bottom(const QRect& rect) {
    return rect.y() + rect.height();
}

int nearest(double value) {
    return static_cast<int>(std::floor(value + 0.5));
}

}  // namespace

Rect toScreenCoordinates(const QRect& rect, const QRect& primary) {
    return {{static_cast<double>(rect.x() - primary.x()),
             static_cast<double>(bottom(primary) - bottom(rect))},
            {static_cast<double>(rect.width()), static_cast<double>(rect.height())}};
}

Point toScreenCoordinates(const QPoint& point, const QRect& primary) {
    return {static_cast<double>(point.x() - primary.x()),
            static_cast<double>(bottom(primary) - point.y())};
}

QRect fromScreenCoordinates(const Rect& rect, const QRect& primary) {
    const int left = nearest(rect.minX());
    const int top = nearest(rect.maxY());
    return {primary.x() + left, bottom(primary) - top, nearest(rect.maxX()) - left,
            top - nearest(rect.minY())};
}

QRect fromScreenCoordinates(const Rect& rect) {
    return fromScreenCoordinates(rect, primaryScreenGeometry());
}

QRect frameInPixels(const QScreen& screen) {
    return {screen.geometry().topLeft(), screen.geometry().size() * screen.devicePixelRatio()};
}

QPoint fromPixels(const QPoint& pixel, const QScreen& screen) {
    const QPoint corner = screen.geometry().topLeft();
    return corner + (QPointF(pixel - corner) / screen.devicePixelRatio()).toPoint();
}

QPoint fromPixels(const QPoint& pixel) {
    for (const QScreen* screen : QGuiApplication::screens())
        if (frameInPixels(*screen).contains(pixel)) return fromPixels(pixel, *screen);
    return pixel;
}

QRect primaryScreenGeometry() {
    const QScreen* primary = QGuiApplication::primaryScreen();
    return primary ? primary->geometry() : QRect();
}

QScreen& screenAt(const QPoint& place) {
    QScreen* screen = QGuiApplication::screenAt(place);
    return screen ? *screen : *QGuiApplication::primaryScreen();
}

}  // namespace vantle
