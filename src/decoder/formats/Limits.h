#pragma once

#include <cstdint>

namespace vantle::decoder {

/// Whether a picture of this size is one that we open: no longer than any screen, and of a number
/// of pixels that is read within the time that a reader has.
constexpr bool isReasonable(std::int64_t wide, std::int64_t high) {
    constexpr std::int64_t longest = 100'000;
    constexpr std::int64_t mostPixels = std::int64_t{8} * 7680 * 4320;
    return wide > 0 && high > 0 && wide <= longest && high <= longest && wide * high <= mostPixels;
}

/// The same for a picture that has to stand in memory as a whole.
constexpr bool isReasonableInMemory(std::int64_t wide, std::int64_t high) {
    constexpr std::int64_t mostPixels = std::int64_t{2} * 7680 * 4320;
    return isReasonable(wide, high) && wide * high <= mostPixels;
}

}  // namespace vantle::decoder
