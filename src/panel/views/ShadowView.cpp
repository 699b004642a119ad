#include "panel/views/ShadowView.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "panel/views/RoundedShape.h"

namespace vantle {

double ShadowView::cornerLength() const {
    // The blur reaches as far inwards from the corner as outwards.
    return margin() + blur_ + 1.5 * cornerRadius_;
}

QImage ShadowView::sourcePicture(int corner, double pixelsPerPoint) const {
    const auto pixels = [pixelsPerPoint](double points) {
        return static_cast<int>(std::lround(points * pixelsPerPoint));
    };
    const int side = 2 * corner + 1;
    const int inset = pixels(margin());
    const int plateSide = std::max(side - 2 * inset, 1);
    const QRect plate(inset, inset, plateSide, plateSide);
    const double radius = cornerRadius_ * pixelsPerPoint;
    const int blurred = pixels(blur_);
    QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setOpacity(strength_);
    painter.drawImage(plate.topLeft() + QPoint(-blurred, pixels(verticalOffset_) - blurred),
                      softShadow(plate.size(), radius, blurred));
    painter.setOpacity(1);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.fillPath(continuousRoundedRect(plate, radius), Qt::black);
    return picture;
}

}  // namespace vantle
