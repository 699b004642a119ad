#include "panel/views/ShadowView.h"

#include <QPainter>
#include <cmath>

#include "panel/views/RoundedShape.h"

namespace vantle {

ShadowView::ShadowView(QQuickItem* parent) : QQuickPaintedItem(parent) {
    connect(this, &ShadowView::changed, this, [this] {
        shadowSize_ = {};
        update();
    });
}

void ShadowView::paint(QPainter* painter) {
    const double scale = painter->device()->devicePixelRatioF();
    const auto pixels = [scale](double points) {
        return static_cast<int>(std::lround(points * scale));
    };
    const QSize size(pixels(width() - 2 * blur_), pixels(height() - 2 * blur_));
    if (size.isEmpty()) return;
    if (size != shadowSize_) {
        shadow_ = softShadow(size, cornerRadius_ * scale, pixels(blur_));
        shadow_.setDevicePixelRatio(scale);
        shadowSize_ = size;
    }
    painter->setOpacity(strength_);
    painter->drawImage(0, 0, shadow_);
}

}  // namespace vantle
