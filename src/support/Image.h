#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "support/Geometry.h"

namespace vantle {

/// Pixels that nobody changes any more; shared freely between threads as ImagePointer.
struct Image {
    int pixelsWide = 0;
    int pixelsHigh = 0;
    Size size;  ///< In points: what the image measures when it is drawn.
    /// Premultiplied 8-bit red, green, blue, alpha; rows from the top, without padding:
    /// pixelsWide × pixelsHigh × 4 bytes.
    std::vector<std::uint8_t> rgba;
};

using ImagePointer = std::shared_ptr<const Image>;

}  // namespace vantle
