#include "panel/views/dragging/DragPile.h"

#include <QFont>
#include <QGuiApplication>
#include <QPainter>
#include <algorithm>

#include "panel/CardLayout.h"
#include "panel/views/Appearance.h"
#include "panel/views/RoundedShape.h"

namespace vantle {
namespace {

constexpr double badgeHeight = 20;
constexpr float opacity = 0.94F;

/// Returns the part of the image that has the frame's proportions: all items of a pile have the
/// same size.
QRectF sourceRect(const QSize& image, const QSizeF& frame) {
    const QSizeF part = frame.scaled(image, Qt::KeepAspectRatio);
    return {QPointF((image.width() - part.width()) / 2, (image.height() - part.height()) / 2),
            part};
}

void drawItem(QPainter& painter, const DraggingItem& item, double radius) {
    const QPainterPath shape = continuousRoundedRect(item.frame, radius);
    QBrush brush(item.image);
    const QRectF part = sourceRect(item.image.size(), item.frame.size());
    const double scale = item.frame.width() / part.width();
    // A brush has smooth edges; a clip would have jagged ones.
    brush.setTransform(
        QTransform()
            .translate(item.frame.x() - part.x() * scale, item.frame.y() - part.y() * scale)
            .scale(scale, scale));
    // Pictures may be translucent.
    painter.fillPath(shape, QColor(150, 150, 154));
    painter.fillPath(shape, brush);
    painter.strokePath(continuousRoundedRect(item.frame.adjusted(0.5, 0.5, -0.5, -0.5), radius),
                       QPen(QColor(255, 255, 255, 90), 1));
}

void drawBadge(QPainter& painter, const QRectF& frame, std::size_t count) {
    painter.setPen(QPen(Qt::white, 1.5));
    painter.setBrush(Appearance().accent());
    painter.drawRoundedRect(frame.adjusted(0.75, 0.75, -0.75, -0.75), badgeHeight / 2,
                            badgeHeight / 2);
    QFont font = QGuiApplication::font();
    font.setPixelSize(11);
    font.setBold(true);
    painter.setFont(font);
    painter.drawText(frame, Qt::AlignCenter, QString::number(count));
}

/// Makes the picture translucent, so that the target can be seen behind it.
void makeTranslucent(QPainter& painter, const QRect& all) {
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.fillRect(all, QColor::fromRgbF(0, 0, 0, opacity));
}

}  // namespace

DragPile dragPile(std::vector<DraggingItem> items, double pixelsPerPoint, DragPile::Edges edges) {
    const std::size_t count = items.size();
    const bool isSoft = edges == DragPile::Edges::soft;
    if (!isSoft) items.resize(1);
    const QRectF first = items.front().frame;
    const double radius =
        std::min({CardLayout::thumbnailCornerRadius, first.width() / 4, first.height() / 4});
    // The badge is at the upper left corner, which no other item covers.
    const double overhang = isSoft ? badgeHeight / 2 : -4;
    const QRectF badge(first.x() - overhang, first.y() - overhang,
                       badgeHeight + (count > 9 ? 8 : 0), badgeHeight);
    QRectF frame = count > 1 ? badge : first;
    for (const auto& item : items) frame |= item.frame;
    const QRect whole = frame.toAlignedRect();

    QImage picture(whole.size() * pixelsPerPoint, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(pixelsPerPoint);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.translate(-whole.topLeft());
    // Only the first of several items at the same place can be seen.
    for (std::size_t i = items.size(); i-- > 0;)
        if (i == 0 || items[i].frame != items[i - 1].frame)
            drawItem(painter, items[i], isSoft ? radius : 0);
    if (count > 1) drawBadge(painter, badge, count);
    if (isSoft) makeTranslucent(painter, whole);
    return {picture, whole};
}

}  // namespace vantle
