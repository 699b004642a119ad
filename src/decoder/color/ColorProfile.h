#pragma once

#include <cstdint>
#include <span>

#include "decoder/reduction/Picture.h"

namespace vantle::decoder {

/// Converts a picture from the colours that its ICC profile describes to those of a screen (sRGB).
/// Changes nothing if the profile is empty, damaged or not for RGB pictures.
void convertToScreen(Picture& picture, std::span<const std::uint8_t> colorProfile);

/// The meaning of 255 in a CMYK picture: full ink, or none.
enum class InkPolarity { moreIsDarker, moreIsLighter };

/// Does the same for a picture whose samples are cyan, magenta, yellow and black ink. Uses plain
/// arithmetic if the profile is not usable.
void convertInkToScreen(Picture& picture, InkPolarity polarity,
                        std::span<const std::uint8_t> profile);

}  // namespace vantle::decoder
