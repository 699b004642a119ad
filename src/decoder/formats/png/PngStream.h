#pragma once

#include <optional>

#include "decoder/formats/png/PngChunks.h"

namespace vantle::decoder {

/// The picture data of a PNG file, which may be split into any number of chunks.
class PngStream {
public:
    PngStream(const InputFile& file, const PngHeader& header)
        : chunks_(file, header.dataPosition) {}

    /// Returns the next piece of the data; empty at their end or if the file is damaged.
    std::span<const std::uint8_t> next();

    /// Reads the rest of the file. Returns true if the file was complete and its picture data were
    /// undamaged.
    bool finishIntact();

private:
    PngChunks chunks_;
    bool isInData_ = false;
    bool isPastData_ = false;
    bool isDamaged_ = false;
    std::optional<PngChunk> chunk_;
};

}  // namespace vantle::decoder
