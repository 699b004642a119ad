#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "decoder/formats/InputFile.h"
#include "decoder/formats/Resolution.h"

namespace vantle::decoder {

/// The beginning of a chunk; its data follow.
struct PngChunk {
    std::uint32_t length = 0;
    std::array<std::uint8_t, 4> type{};

    bool is(std::string_view name) const { return text(type) == name; }
};

/// Reads the chunks of a PNG file one by one.
class PngChunks {
public:
    /// Starts with the chunk at `position`; the default is the end of the signature.
    explicit PngChunks(const InputFile& file, std::int64_t position = 8);

    std::int64_t position() const { return stream_.position(); }

    /// Returns the beginning of the next chunk; std::nullopt at the end of the file. The caller
    /// must read or skip the chunk's data before the next call.
    std::optional<PngChunk> next();

    /// Reads all data of the chunk and its checksum. Returns std::nullopt if the data are longer
    /// than `limit` bytes, incomplete or damaged.
    std::optional<std::vector<std::uint8_t>> data(const PngChunk& chunk, std::size_t limit);

    /// Returns some of the chunk's data; empty at the end of the chunk or of the file.
    std::span<const std::uint8_t> nextData();

    /// Reads the checksum and returns true if it matches the chunk's data, all of which nextData()
    /// must have returned before.
    bool isIntact();

    void skip();

private:
    InputStream stream_;
    std::uint32_t left_ = 0;  ///< Bytes of the chunk's data that are not read yet.
    std::uint32_t checksum_ = 0;
};

/// The contents of a PNG file before its picture data.
struct PngHeader {
    PixelSize size;
    int depth = 0;
    int colorType = 0;
    bool isInterlaced = false;
    bool hasTransparency = false;  ///< There is a tRNS chunk: some colours are transparent.
    Resolution resolution;
    std::vector<std::uint8_t> colorProfile;  ///< ICC; empty if there is none.
    /// The signature, header, palette and transparency, as they are stored.
    std::vector<std::uint8_t> drawingChunks;
    /// The position of the first chunk of picture data in the file.
    std::int64_t dataPosition = 0;

    static constexpr int rgb = 2;
    static constexpr int rgba = 6;

    /// Returns true for the PNG that screenshot tools write: RGB or RGBA, 8 bits per channel, not
    /// interlaced.
    bool isPlain() const {
        return depth == 8 && !isInterlaced &&
               (colorType == rgba || (colorType == rgb && !hasTransparency));
    }
};

/// Returns std::nullopt if the file is not a PNG or is damaged before its picture data.
std::optional<PngHeader> readPngHeader(const InputFile& file);

}  // namespace vantle::decoder
