#pragma once

#include <cstdint>
#include <vector>

namespace vantle::decoder {

struct PixelSize {
    int wide = 0;
    int high = 0;
    friend bool operator==(const PixelSize&, const PixelSize&) = default;
};

/// Premultiplied 8-bit red, green, blue, alpha; rows from the top, without padding.
struct Picture {
    PixelSize size;
    std::vector<std::uint8_t> rgba;
};

}  // namespace vantle::decoder
