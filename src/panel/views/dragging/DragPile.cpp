#include "panel/views/dragging/DragPile.h"

#include <QFont>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <algorithm>

#include "panel/views/RoundedShape.h"

namespace vantle {
namespace {

constexpr double cornerRadius = 12;
constexpr double badgeHeight = 20;
// Behind it one still sees where one is going.
constexpr double opacity = 0.94;

/// The part of the image that has the frame's proportions: all items of a pile are alike in size.
QRectF filling(const QSize& image, const QSizeF& frame) {
    const QSizeF part = frame.scaled(image, Qt::KeepAspectRatio);
    return {QPointF((image.width() - part.width()) / 2, (image.height() - part.height()) / 2),
            part};
}

void drawItem(QPainter& painter, const DraggingItem& item) {
    const double radius = std::min({cornerRadius, item.frame.width() / 4, item.frame.height() / 4});
    const QPainterPath shape = continuousRoundedRect(item.frame, radius);
    QBrush brush(item.image);
    const QRectF part = filling(item.image.size(), item.frame.size());
    const double scale = item.frame.width() / part.width();
    // A brush has smooth edges where a clip would have stair-steps.
    brush.setTransform(
        QTransform()
            .translate(item.frame.x() - part.x() * scale, item.frame.y() - part.y() * scale)
            .scale(scale, scale));
    painter.fillPath(shape, QColor(0, 0, 0, 64));
    painter.fillPath(shape, brush);
    painter.strokePath(
        continuousRoundedRect(item.frame.adjusted(0.5, 0.5, -0.5, -0.5), radius - 0.5),
        QPen(QColor(255, 255, 255, 90), 1));
}

/// At the upper left corner, which nothing of the pile covers.
QRectF badgeFrame(const QRectF& first, std::size_t count) {
    const double width = badgeHeight + (count > 9 ? 8 : 0);
    return {first.x() - badgeHeight / 2, first.y() - badgeHeight / 2, width, badgeHeight};
}

void drawBadge(QPainter& painter, const QRectF& frame, std::size_t count) {
    painter.setPen(QPen(Qt::white, 1.5));
    painter.setBrush(QGuiApplication::palette().color(QPalette::Highlight));
    painter.drawRoundedRect(frame.adjusted(0.75, 0.75, -0.75, -0.75), badgeHeight / 2,
                            badgeHeight / 2);
    QFont font = QGuiApplication::font();
    font.setPixelSize(11);
    font.setBold(true);
    painter.setFont(font);
    painter.drawText(frame, Qt::AlignCenter, QString::number(count));
}

}  // namespace

DragPile dragPile(const std::vector<DraggingItem>& items, double pixelsPerPoint) {
    QRectF frame;
    for (const auto& item : items) frame |= item.frame;
    const QRectF badge = badgeFrame(items.front().frame, items.size());
    if (items.size() > 1) frame |= badge;
    const QRect whole = frame.toAlignedRect();

    QImage picture(whole.size() * pixelsPerPoint, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(pixelsPerPoint);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.translate(-whole.topLeft());
    painter.setOpacity(opacity);
    // Of the items that stand on one place only the first can be seen.
    for (std::size_t i = items.size(); i-- > 0;)
        if (i == 0 || items[i].frame != items[i - 1].frame) drawItem(painter, items[i]);
    painter.setOpacity(1);
    if (items.size() > 1) drawBadge(painter, badge, items.size());
    return {picture, whole};
}

}  // namespace vantle
