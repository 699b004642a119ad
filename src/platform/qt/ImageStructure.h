#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace vantle {

/// What the frame of an image file tells without decoding it.
struct ImageStructure {
    enum class Format { png, jpeg, gif };
    struct Resolution {
        double across = 72;
        double down = 72;
    };

    Format format;
    /// Whether the file goes on to the end that its format marks, with the right checksums where
    /// it has some, in a number of steps that an honest file keeps to.
    bool isComplete = false;
    Resolution dotsPerInch;  ///< 72 where the file does not say.
};

/// Walks the chunks of a PNG, the markers of a JPEG or the blocks of a GIF; absent when it is none
/// of them. Looks at every byte at most once.
std::optional<ImageStructure> imageStructure(std::span<const std::uint8_t> file);

/// Moves the chunks of a PNG together that its picture is made of, and returns how many bytes they
/// take. The rest (texts that unfold to a thousand times their size, for one) is not worth reading.
std::size_t keepPictureOfPng(std::span<std::uint8_t> file);

}  // namespace vantle
