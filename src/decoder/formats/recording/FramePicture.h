#pragma once

#include <optional>

#include "decoder/formats/recording/FrameDecoder.h"
#include "decoder/reduction/Picture.h"

namespace vantle::decoder {

/// Converts a decoded frame to `target` pixels, in its stored orientation. Returns std::nullopt on
/// failure.
std::optional<Picture> pictureOf(const AVFrame& frame, PixelSize target);

}  // namespace vantle::decoder
