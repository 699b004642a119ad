#pragma once

#include <cstdint>
#include <vector>

#include "support/PixelSize.h"

namespace vantle::decoder {

/// Premultiplied 8-bit red, green, blue, alpha; rows from the top, without padding.
struct Picture {
    PixelSize size;
    std::vector<std::uint8_t> rgba;
};

}  // namespace vantle::decoder
