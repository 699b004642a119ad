#include "menus/MenuPictureProvider.h"

#include "platform/qt/MenuPicture.h"

namespace vantle {

QImage MenuPictureProvider::requestImage(const QString& id, QSize* size,
                                         const QSize& requestedSize) {
    const auto number = [&id](int section) {
        return id.section(QLatin1Char('/'), section, section).toInt();
    };
    const MenuImage* image = model_.image(number(1), number(2));
    if (!image) return {};
    const QImage picture = menuPicture(*image, requestedSize.width() / image->size.width);
    *size = picture.size();
    return picture;
}

}  // namespace vantle
