#pragma once

namespace vantle {

/// The size of a picture in whole pixels.
struct PixelSize {
    int width = 0;
    int height = 0;
    friend bool operator==(const PixelSize&, const PixelSize&) = default;
};

}  // namespace vantle
