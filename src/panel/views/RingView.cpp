#include "panel/views/RingView.h"

#include <QPainter>
#include <cmath>
#include <limits>

namespace vantle {

double RingView::cornerLength() const {
    // A ring has no straight edges, whatever its size.
    return std::numeric_limits<double>::infinity();
}

QImage RingView::sourcePicture(int corner, double pixelsPerPoint) const {
    constexpr int whole = 360 * 16;  // QPainter counts sixteenths of a degree
    const int side = 2 * corner + 1;
    const double width = thickness_ * pixelsPerPoint;
    const QRectF middle = QRectF(0, 0, side, side).marginsRemoved(QMarginsF() + width / 2);
    QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(trackColor_, width));
    painter.drawEllipse(middle);
    if (fraction_ <= 0) return picture;
    painter.setPen(QPen(color_, width, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(middle, whole / 4, -static_cast<int>(std::lround(fraction_ * whole)));
    return picture;
}

}  // namespace vantle
