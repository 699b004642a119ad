#include "menus/MenuPictureProvider.h"

#include "platform/qt/MenuPicture.h"

namespace vantle {

QImage MenuPictureProvider::requestImage(const QString& id, QSize* size,
                                         const QSize& requestedSize) {
    const MenuImage* image = model_.image(id.section(QLatin1Char('/'), 1, 1).toInt());
    if (!image) return {};
    const QImage picture = menuPicture(*image, requestedSize.width() / image->size.width);
    *size = picture.size();
    return picture;
}

}  // namespace vantle
