#pragma once

#include "support/Image.h"

namespace vantle {

/// The image in so few pixels that it fits into that room, whole and with the same size in points;
/// the image itself when it has no more already.
ImagePointer smallPicture(const ImagePointer& image, int pixelsWide, int pixelsHigh);

}  // namespace vantle
