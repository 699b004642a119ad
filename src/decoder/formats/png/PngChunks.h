#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "decoder/formats/InputFile.h"
#include "decoder/formats/Resolution.h"

namespace vantle::decoder {

/// The beginning of a chunk; its data stand behind it.
struct PngChunk {
    std::uint32_t length = 0;
    std::array<std::uint8_t, 4> type{};

    bool is(std::string_view name) const { return text(type) == name; }
};

/// Walks through the chunks of a PNG file.
class PngChunks {
public:
    /// Stands on the first chunk behind `position`, which is the signature's end at first.
    explicit PngChunks(const InputFile& file, std::int64_t position = 8);

    std::int64_t position() const { return stream_.position(); }

    /// The next chunk's beginning; its data are to be read or skipped before the one after it.
    std::optional<PngChunk> next();

    /// All data of the chunk, which is then behind us. Absent when they are more than `limit`, cut
    /// off, or damaged.
    std::optional<std::vector<std::uint8_t>> data(const PngChunk& chunk, std::size_t limit);

    /// Some of the chunk's data; empty at the end of the chunk or of the file.
    std::span<const std::uint8_t> someData();

    /// Whether the chunk's data, all of which someData() gave, are what its checksum says.
    bool isIntact();

    void skip();

private:
    InputStream stream_;
    std::uint32_t left_ = 0;  ///< Of the chunk's data.
    std::uint32_t checksum_ = 0;
};

/// What stands before the picture's data.
struct PngHeader {
    PixelSize size;
    int depth = 0;
    int colorType = 0;
    bool isInterlaced = false;
    bool hasTransparency = false;  ///< A colour, or colours of the palette, that cannot be seen.
    Resolution resolution;
    std::vector<std::uint8_t> colorProfile;  ///< ICC; empty when there is none.
    /// Signature, header, palette and transparency, as they stand in the file.
    std::vector<std::uint8_t> picturePart;
    /// Of the first chunk of picture data.
    std::int64_t dataPosition = 0;

    static constexpr int rgb = 2;
    static constexpr int rgba = 6;

    /// What screenshot tools write: 8 bits a channel, RGB or RGBA, not interlaced.
    bool isPlain() const {
        return depth == 8 && !isInterlaced &&
               (colorType == rgba || (colorType == rgb && !hasTransparency));
    }
};

/// Absent when the file does not begin as a PNG does.
std::optional<PngHeader> readPngHeader(const InputFile& file);

}  // namespace vantle::decoder
