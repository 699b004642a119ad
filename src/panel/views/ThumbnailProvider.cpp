#include "panel/views/ThumbnailProvider.h"

#include <QPainter>
#include <QStringList>

#include "panel/CardLayout.h"
#include "panel/views/RoundedShape.h"
#include "platform/qt/Pixels.h"

namespace vantle {
namespace {

constexpr float groundOpacity = 0.25F;

void drawFitted(QPainter& painter, const QImage& image, const QSize& target) {
    // The size is rounded as the tile's own size is; otherwise a line of the background would show.
    const QSize fitted =
        QSizeF(image.size()).scaled(target, Qt::KeepAspectRatio).toSize().expandedTo({1, 1});
    const QImage scaled = image.scaled(fitted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    painter.drawImage((target.width() - fitted.width()) / 2,
                      (target.height() - fitted.height()) / 2, scaled);
}

/// Keeps only what lies inside the rounded corners. A clip path would leave jagged edges.
void roundCorners(QImage& picture, double radius) {
    QImage mask(picture.size(), QImage::Format_ARGB32_Premultiplied);
    mask.fill(Qt::transparent);
    QPainter maskPainter(&mask);
    maskPainter.setRenderHint(QPainter::Antialiasing);
    maskPainter.fillPath(continuousRoundedRect(QRectF(picture.rect()), radius), Qt::black);
    maskPainter.end();
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.drawImage(0, 0, mask);
}

}  // namespace

QImage ThumbnailProvider::requestImage(const QString& id, QSize* size, const QSize& requestedSize) {
    const QStringList parts = id.split(QLatin1Char('/'));
    const QStringList points = parts.value(1).split(QLatin1Char('x'));
    const double widthInPoints = points.value(0).toDouble();
    const CapturePointer capture = lookup_(parts.value(0));
    if (!requestedSize.isValid() || widthInPoints <= 0) return {};

    QImage picture(requestedSize, QImage::Format_ARGB32_Premultiplied);
    picture.fill(QColor::fromRgbF(0, 0, 0, groundOpacity));
    // A capture that has left meanwhile is drawn without a picture.
    if (capture && capture->thumbnail()) {
        QPainter painter(&picture);
        drawFitted(painter, pixels(*capture->thumbnail()), requestedSize);
    }
    roundCorners(picture,
                 CardLayout::thumbnailCornerRadius * requestedSize.width() / widthInPoints);
    *size = picture.size();
    return picture;
}

}  // namespace vantle
