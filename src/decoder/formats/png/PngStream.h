#pragma once

#include <optional>

#include "decoder/formats/png/PngChunks.h"

namespace vantle::decoder {

/// The picture data of a PNG file, which any number of chunks hold.
class PngStream {
public:
    PngStream(const InputFile& file, const PngHeader& header)
        : chunks_(file, header.dataPosition) {}

    /// Some more of the data; empty at their end, or where the file is damaged.
    std::span<const std::uint8_t> next();

    /// Reads what is left of the file. Whether it was whole, and its picture data undamaged.
    bool endsWell();

private:
    PngChunks chunks_;
    bool isInData_ = false;
    bool isBehindData_ = false;
    bool isDamaged_ = false;
    std::optional<PngChunk> chunk_;
};

}  // namespace vantle::decoder
