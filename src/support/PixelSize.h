#pragma once

namespace vantle {

/// Of a picture, in whole pixels.
struct PixelSize {
    int wide = 0;
    int high = 0;
    friend bool operator==(const PixelSize&, const PixelSize&) = default;
};

}  // namespace vantle
