#include "preview/views/PreviewPictureProvider.h"

#include <memory>

#include "platform/qt/Pixels.h"

namespace vantle {

QImage PreviewPictureProvider::requestImage(const QString& id, QSize* size, const QSize&) {
    const ImagePointer image = model_.image(id);
    if (!image) return {};
    const QImage view = pixels(*image);
    *size = view.size();
    // The picture is not copied, so the toolkit's image has to keep it.
    auto* kept = std::make_unique<ImagePointer>(image).release();
    return {view.constBits(),
            view.width(),
            view.height(),
            view.bytesPerLine(),
            view.format(),
            [](void* held) { delete static_cast<ImagePointer*>(held); },
            kept};
}

}  // namespace vantle
