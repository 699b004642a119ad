#pragma once

#include <cstdint>

namespace vantle::decoder {

/// Returns true if a picture of this size may be opened: neither side is longer than any screen
/// could be, and there are few enough pixels to read them within the reader's time limit.
constexpr bool isReasonable(std::int64_t width, std::int64_t height) {
    constexpr std::int64_t maximumLength = 100'000;
    constexpr std::int64_t maximumPixels = std::int64_t{8} * 7680 * 4320;
    return width > 0 && height > 0 && width <= maximumLength && height <= maximumLength &&
           width * height <= maximumPixels;
}

/// Does the same for a picture that must be in memory as a whole.
constexpr bool isReasonableInMemory(std::int64_t width, std::int64_t height) {
    constexpr std::int64_t maximumPixels = std::int64_t{2} * 7680 * 4320;
    return isReasonable(width, height) && width * height <= maximumPixels;
}

}  // namespace vantle::decoder
