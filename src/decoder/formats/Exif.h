#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "decoder/formats/Orientation.h"
#include "decoder/formats/Resolution.h"

namespace vantle::decoder {

/// What cameras and programs note beside a picture.
struct Exif {
    Orientation orientation = Orientation::upright;
    std::optional<Resolution> resolution;
};

/// Reads the TIFF structure that Exif data are. What is damaged is not said.
Exif readExif(std::span<const std::uint8_t> data);

}  // namespace vantle::decoder
