#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace vantle {

/// What the frame of an image file tells without decoding it.
struct ImageStructure {
    bool isComplete = false;  ///< Whether the file goes on to the end that its format marks.
    double dotsPerInch = 72;  ///< 72 where the file does not say.
};

/// Walks the chunks of a PNG or the markers of a JPEG; absent when it is neither. Reads every byte
/// at most once.
std::optional<ImageStructure> imageStructure(std::span<const std::uint8_t> file);

}  // namespace vantle
