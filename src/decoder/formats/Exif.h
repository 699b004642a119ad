#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "decoder/formats/Orientation.h"
#include "decoder/formats/Resolution.h"

namespace vantle::decoder {

/// The metadata that cameras and programs store with a picture.
struct Exif {
    Orientation orientation = Orientation::upright;
    std::optional<Resolution> resolution;
};

/// Reads Exif data, which have the structure of a TIFF file. Damaged fields keep their defaults.
Exif readExif(std::span<const std::uint8_t> data);

}  // namespace vantle::decoder
