#pragma once

#include <optional>
#include <vector>

#include "decoder/color/ColorProfile.h"
#include "decoder/formats/Exif.h"
#include "decoder/formats/InputFile.h"

namespace vantle::decoder {

/// The header data of a JPEG file.
struct JpegHeader {
    PixelSize size;  ///< The stored size, before `orientation` is applied.
    Resolution resolution;
    Orientation orientation = Orientation::upright;
    bool isInk = false;
    InkPolarity inkPolarity = InkPolarity::moreIsDarker;
    std::vector<std::uint8_t> colorProfile;
};

std::optional<JpegHeader> readJpegHeader(const InputFile& file);

/// Draws the picture in its stored orientation and colours (ink if the header says so). Returns
/// std::nullopt if the file is damaged or incomplete.
std::optional<Picture> drawJpeg(const InputFile& file, PixelSize target);

}  // namespace vantle::decoder
