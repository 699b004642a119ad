#pragma once

#include <QImage>

#include "support/Image.h"

namespace vantle {

/// Returns the image's pixels for the toolkit: a view, not a copy, that is valid while the image
/// lives.
inline QImage pixels(const Image& image) {
    return {image.rgba.data(), image.pixelsWide, image.pixelsHigh, qsizetype{4} * image.pixelsWide,
            QImage::Format_RGBA8888_Premultiplied};
}

}  // namespace vantle
