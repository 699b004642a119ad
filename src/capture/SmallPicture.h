#pragma once

#include "support/Image.h"

namespace vantle {

/// Returns the whole image, shrunk to fit into `pixelsWide` × `pixelsHigh`, with the same size in
/// points; the image itself if it fits already.
ImagePointer smallPicture(const ImagePointer& image, int pixelsWide, int pixelsHigh);

}  // namespace vantle
