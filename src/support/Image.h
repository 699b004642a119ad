#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "support/Geometry.h"

namespace vantle {

/// Pixels that never change, so that threads can share them freely as ImagePointer.
struct Image {
    int pixelsWide = 0;
    int pixelsHigh = 0;
    Size size;  ///< The size in points at which the image is drawn.
    /// Premultiplied 8-bit red, green, blue, alpha; rows from the top, without padding:
    /// pixelsWide × pixelsHigh × 4 bytes.
    std::vector<std::uint8_t> rgba;
};

using ImagePointer = std::shared_ptr<const Image>;

}  // namespace vantle
