#include "panel/views/PlateView.h"

#include <QPainter>
#include <algorithm>

#include "panel/views/RoundedShape.h"

namespace vantle {

double PlateView::cornerLength() const {
    return std::max(1.5 * cornerRadius_, borderWidth_);
}

QImage PlateView::sourcePicture(int corner, double pixelsPerPoint) const {
    const int side = 2 * corner + 1;
    const QRectF bounds(0, 0, side, side);
    QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const double radius = cornerRadius_ * pixelsPerPoint;
    const QPainterPath outline = continuousRoundedRect(bounds, radius);
    painter.fillPath(outline, fill_);
    if (borderWidth_ <= 0) return picture;
    const double width = borderWidth_ * pixelsPerPoint;
    const QRectF inside = bounds.adjusted(width, width, -width, -width);
    painter.fillPath(
        outline.subtracted(continuousRoundedRect(inside, std::max(radius - width, 0.0))),
        borderColor_);
    return picture;
}

}  // namespace vantle
