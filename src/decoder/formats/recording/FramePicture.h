#pragma once

#include <optional>

#include "decoder/formats/recording/FrameDecoder.h"
#include "decoder/reduction/Picture.h"

namespace vantle::decoder {

/// A decoded frame in `target` pixels, as it is stored.
std::optional<Picture> pictureOf(const AVFrame& frame, PixelSize target);

}  // namespace vantle::decoder
