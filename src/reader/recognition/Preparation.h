#pragma once

#include <cstdint>
#include <span>

#include "reader/recognition/GrayPicture.h"

namespace vantle::reader {

/// Returns the picture as the recognizer gets it: gray, and enlarged up to twice, because letters
/// on a screen have few pixels (docs/performance.md says how much that helps). `rgba` holds
/// premultiplied 8-bit red, green, blue and alpha, without padding, of the size `size`; what is
/// translucent lies on white.
GrayPicture prepared(std::span<const std::uint8_t> rgba, PixelSize size);

}  // namespace vantle::reader
