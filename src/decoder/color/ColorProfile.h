#pragma once

#include <cstdint>
#include <span>

#include "decoder/reduction/Picture.h"

namespace vantle::decoder {

/// Brings a picture from the colours that its ICC profile describes into those of a screen (sRGB).
/// A profile that is empty, damaged, or not one for such pictures changes nothing.
void convertToScreen(Picture& picture, std::span<const std::uint8_t> colorProfile);

/// Whether 255 of a CMYK picture means full ink, or none.
enum class InkSense { moreIsDarker, moreIsLighter };

/// The same for a picture whose samples are cyan, magenta, yellow and black ink; without a usable
/// profile by plain arithmetic.
void convertInkToScreen(Picture& picture, InkSense sense, std::span<const std::uint8_t> profile);

}  // namespace vantle::decoder
