#pragma once

#include <cstdint>

namespace vantle::decoder {

/// Whether a picture of this size is one that we open: no longer than any screen, and of a number
/// of pixels that is read within the time that a reader has.
constexpr bool isReasonable(std::int64_t width, std::int64_t height) {
    constexpr std::int64_t maximumLength = 100'000;
    constexpr std::int64_t maximumPixels = std::int64_t{8} * 7680 * 4320;
    return width > 0 && height > 0 && width <= maximumLength && height <= maximumLength &&
           width * height <= maximumPixels;
}

/// The same for a picture that has to stand in memory as a whole.
constexpr bool isReasonableInMemory(std::int64_t width, std::int64_t height) {
    constexpr std::int64_t maximumPixels = std::int64_t{2} * 7680 * 4320;
    return isReasonable(width, height) && width * height <= maximumPixels;
}

}  // namespace vantle::decoder
