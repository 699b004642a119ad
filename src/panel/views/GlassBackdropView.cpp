#include "panel/views/GlassBackdropView.h"

#include <QQuickWindow>

namespace vantle {

GlassBackdropView::GlassBackdropView(QQuickItem* parent) : PlateView(parent) {
    setProperty("cornerRadius", defaultCornerRadius);
}

void GlassBackdropView::setBlurred(bool isBlurred) {
    if (isBlurred == isBlurred_) return;
    isBlurred_ = isBlurred;
    emit isBlurredChanged();
}

QString GlassBackdropView::debugFrameDescription() const {
    if (!window()) return QStringLiteral("(no window)");
    const QRectF frame = mapRectToScene(boundingRect());
    return QStringLiteral("{{%1, %2}, {%3, %4}}")
        .arg(static_cast<int>(frame.x()))
        .arg(static_cast<int>(frame.y()))
        .arg(static_cast<int>(frame.width()))
        .arg(static_cast<int>(frame.height()));
}

}  // namespace vantle
