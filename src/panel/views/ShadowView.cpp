#include "panel/views/ShadowView.h"

#include <QPainter>
#include <cmath>

#include "panel/views/RoundedShape.h"

namespace vantle {

ShadowView::ShadowView(QQuickItem* parent) : QQuickPaintedItem(parent) {
    connect(this, &ShadowView::changed, this, [this] { update(); });
}

void ShadowView::paint(QPainter* painter) {
    const double scale = painter->device()->devicePixelRatioF();
    const auto pixels = [scale](double points) {
        return static_cast<int>(std::lround(points * scale));
    };
    const QSize size(pixels(width() - 2 * blur_), pixels(height() - 2 * blur_));
    if (size.isEmpty()) return;
    QImage shadow = softShadow(size, cornerRadius_ * scale, pixels(blur_));
    shadow.setDevicePixelRatio(scale);
    painter->setOpacity(strength_);
    painter->drawImage(0, 0, shadow);
}

}  // namespace vantle
