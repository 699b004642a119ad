#include "platform/qt/MenuPicture.h"

#include <QPainter>
#include <algorithm>

#include "platform/qt/Pixels.h"

namespace vantle {

QImage menuPicture(const MenuImage& image, double pixelsPerPoint) {
    const auto inPixels = [pixelsPerPoint](double points) {
        return std::max(1, qRound(points * pixelsPerPoint));
    };
    QImage room(inPixels(image.size.width), inPixels(image.size.height),
                QImage::Format_ARGB32_Premultiplied);
    room.fill(Qt::transparent);
    const Rect& frame = image.frame;
    // The picture is scaled before it is drawn, because the painter alone would skip most pixels.
    const QImage picture = pixels(*image.picture)
                               .scaled(inPixels(frame.size.width), inPixels(frame.size.height),
                                       Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QPainter(&room).drawImage(QPointF(frame.origin.x, frame.origin.y) * pixelsPerPoint, picture);
    return room;
}

}  // namespace vantle
