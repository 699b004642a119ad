#pragma once

#include <cstdint>
#include <vector>

#include "support/PixelSize.h"

namespace vantle::reader {

/// A picture in shades of gray: one byte per pixel, 0 for black, in rows from the top without
/// padding.
struct GrayPicture {
    PixelSize size;
    std::vector<std::uint8_t> pixels;
};

}  // namespace vantle::reader
