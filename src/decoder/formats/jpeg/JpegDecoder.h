#pragma once

#include <optional>
#include <vector>

#include "decoder/color/ColorProfile.h"
#include "decoder/formats/Exif.h"
#include "decoder/formats/InputFile.h"

namespace vantle::decoder {

/// What a JPEG says about itself.
struct JpegHeader {
    PixelSize size;  ///< As it is stored.
    Resolution resolution;
    Orientation orientation = Orientation::upright;
    bool isInk = false;
    InkSense inkSense = InkSense::moreIsDarker;
    std::vector<std::uint8_t> colorProfile;
};

std::optional<JpegHeader> readJpegHeader(const InputFile& file);

/// The picture as it is stored, in its own colours (ink, where the header says so).
std::optional<Picture> drawJpeg(const InputFile& file, PixelSize target);

}  // namespace vantle::decoder
