#pragma once

#include <optional>

#include "decoder/formats/png/PngChunks.h"

namespace vantle::decoder {

/// Of a header that isPlain(). Row by row: unpacked on this thread, unfiltered on a second, reduced
/// on a third one.
std::optional<Picture> drawPlainPng(const InputFile& file, const PngHeader& header,
                                    PixelSize target);

/// Every other kind, through libpng.
std::optional<Picture> drawAnyPng(const InputFile& file, const PngHeader& header, PixelSize target);

}  // namespace vantle::decoder
