#include "panel/views/ShadowView.h"

#include <QPainter>
#include <cmath>

#include "panel/views/RoundedShape.h"

namespace vantle {

double ShadowView::cornerLength() const {
    // Beyond the corner itself the blur reaches as far inwards as outwards.
    return 2 * blur_ + 1.5 * cornerRadius_;
}

QImage ShadowView::cornersOnly(int corner, double pixelsPerPoint) const {
    const int blurred = static_cast<int>(std::lround(blur_ * pixelsPerPoint));
    const int side = 2 * corner + 1;
    const QSize plate(side - 2 * blurred, side - 2 * blurred);
    QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setOpacity(strength_);
    painter.drawImage(0, 0, softShadow(plate, cornerRadius_ * pixelsPerPoint, blurred));
    return picture;
}

}  // namespace vantle
