#include "panel/views/GlassBackdropView.h"

#include <QPainter>
#include <QQuickWindow>

#include "panel/views/Appearance.h"
#include "panel/views/RoundedShape.h"

namespace vantle {
namespace {

constexpr double borderWidth = 1;
constexpr float borderOpacity = 0.18F;
constexpr float plainOpacity = 0.85F;

}  // namespace

GlassBackdropView::GlassBackdropView(QQuickItem* parent) : QQuickPaintedItem(parent) {
    connect(this, &GlassBackdropView::changed, this, [this] { update(); });
}

void GlassBackdropView::paint(QPainter* painter) {
    const QRectF bounds = boundingRect();
    painter->setRenderHint(QPainter::Antialiasing);
    if (plain_) {
        QColor fill = Appearance::windowBackground();
        fill.setAlphaF(plainOpacity);
        painter->fillPath(continuousRoundedRect(bounds, cornerRadius_), fill);
        return;
    }
    painter->fillPath(continuousRoundedRect(bounds, cornerRadius_), Appearance::popoverMaterial());
    // The border stands inside the edge.
    const double half = borderWidth / 2;
    painter->strokePath(
        continuousRoundedRect(bounds.adjusted(half, half, -half, -half), cornerRadius_ - half),
        QPen(QColor::fromRgbF(1, 1, 1, borderOpacity), borderWidth));
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
