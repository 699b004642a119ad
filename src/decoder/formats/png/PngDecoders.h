#pragma once

#include <optional>

#include "decoder/formats/png/PngChunks.h"

namespace vantle::decoder {

/// Draws a picture whose header isPlain(), row by row: decompresses on this thread, undoes the
/// filters on a second one and reduces on a third one.
std::optional<Picture> drawPlainPng(const InputFile& file, const PngHeader& header,
                                    PixelSize target);

/// Draws any other PNG, with libpng.
std::optional<Picture> drawAnyPng(const InputFile& file, const PngHeader& header, PixelSize target);

}  // namespace vantle::decoder
