#include "decoder/formats/png/PngChunks.h"

#include <isa-l.h>

#include <algorithm>

namespace vantle::decoder {
namespace {

constexpr std::array<std::uint8_t, 8> signature = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n'};

std::uint32_t checksumOf(std::uint32_t before, std::span<const std::uint8_t> bytes) {
    return crc32_gzip_refl(before, bytes.data(), bytes.size());
}

void append(std::vector<std::uint8_t>& bytes, std::span<const std::uint8_t> more) {
    bytes.insert(bytes.end(), more.begin(), more.end());
}

void appendNumber(std::vector<std::uint8_t>& bytes, std::uint32_t number) {
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.push_back(static_cast<std::uint8_t>(number >> shift));
}

void appendChunk(std::vector<std::uint8_t>& bytes, const PngChunk& chunk,
                 std::span<const std::uint8_t> data) {
    appendNumber(bytes, chunk.length);
    append(bytes, chunk.type);
    append(bytes, data);
    appendNumber(bytes, checksumOf(checksumOf(0, chunk.type), data));
}

/// Returns the profile from an iCCP chunk, which consists of a name, a zero, the method and
/// compressed data; empty if it is damaged or larger than 4 MiB.
std::vector<std::uint8_t> colorProfile(std::span<const std::uint8_t> data) {
    constexpr std::size_t maximumSize = std::size_t{4} * 1024 * 1024;
    const auto nameEnd = std::ranges::find(data, 0);
    const auto nameSize = static_cast<std::size_t>(nameEnd - data.begin());
    if (nameSize + 2 > data.size()) return {};
    const auto compressed = data.subspan(nameSize + 2);

    std::vector<std::uint8_t> profile(maximumSize);
    inflate_state state;
    isal_inflate_init(&state);
    state.crc_flag = ISAL_ZLIB;
    state.next_in = const_cast<std::uint8_t*>(compressed.data());
    state.avail_in = static_cast<std::uint32_t>(compressed.size());
    state.next_out = profile.data();
    state.avail_out = static_cast<std::uint32_t>(profile.size());
    const int result = isal_inflate(&state);
    if (result != ISAL_DECOMP_OK || state.block_state != ISAL_BLOCK_FINISH) return {};
    profile.resize(profile.size() - state.avail_out);
    profile.shrink_to_fit();
    return profile;
}

void readResolution(PngHeader& header, std::span<const std::uint8_t> data) {
    constexpr std::uint8_t perMetre = 1;
    if (data.size() != 9 || data[8] != perMetre) return;
    header.resolution =
        Resolution::of(bigEndian32(data.data()), bigEndian32(&data[4]), Resolution::metresPerInch);
}

bool readSizes(PngHeader& header, std::span<const std::uint8_t> data) {
    constexpr std::uint32_t maximumLength = 0x7fff'ffff;
    if (data.size() != 13 || bigEndian32(data.data()) > maximumLength ||
        bigEndian32(&data[4]) > maximumLength)
        return false;
    header.size = {static_cast<int>(bigEndian32(data.data())),
                   static_cast<int>(bigEndian32(&data[4]))};
    header.depth = data[8];
    header.colorType = data[9];
    header.isInterlaced = data[12] != 0;
    return data[10] == 0 && data[11] == 0 && data[12] <= 1;
}

/// Reads a chunk before the picture data. Returns false if the file cannot be used.
bool readChunk(PngHeader& header, PngChunks& chunks, const PngChunk& chunk) {
    constexpr std::size_t maximumProfile = std::size_t{4} * 1024 * 1024;
    constexpr std::size_t maximumTable = 768;
    const bool belongsToPicture = chunk.is("IHDR") || chunk.is("PLTE") || chunk.is("tRNS");
    if (!belongsToPicture && !chunk.is("pHYs") && !chunk.is("iCCP")) {
        chunks.skip();
        return true;
    }
    const auto data = chunks.data(chunk, belongsToPicture ? maximumTable : maximumProfile);
    // Chunks that only describe the picture may be damaged; the others may not.
    if (!data) return !belongsToPicture;
    if (belongsToPicture) appendChunk(header.drawingChunks, chunk, *data);
    if (chunk.is("tRNS")) header.hasTransparency = true;
    if (chunk.is("pHYs")) readResolution(header, *data);
    if (chunk.is("iCCP")) header.colorProfile = colorProfile(*data);
    constexpr std::size_t maximumDrawingChunks = 4096;
    return header.drawingChunks.size() <= maximumDrawingChunks &&
           (!chunk.is("IHDR") || readSizes(header, *data));
}

}  // namespace

PngChunks::PngChunks(const InputFile& file, std::int64_t position) : stream_(file) {
    stream_.seek(position);
}

std::optional<PngChunk> PngChunks::next() {
    std::array<std::uint8_t, 8> bytes{};
    if (!stream_.read(bytes)) return std::nullopt;
    PngChunk chunk{bigEndian32(bytes.data())};
    std::copy_n(bytes.begin() + 4, 4, chunk.type.begin());
    left_ = chunk.length;
    checksum_ = checksumOf(0, chunk.type);
    return chunk;
}

std::optional<std::vector<std::uint8_t>> PngChunks::data(const PngChunk& chunk, std::size_t limit) {
    if (chunk.length > limit) {
        skip();
        return std::nullopt;
    }
    std::vector<std::uint8_t> data;
    data.reserve(chunk.length);
    for (auto some = nextData(); !some.empty(); some = nextData()) append(data, some);
    return isIntact() ? std::optional(std::move(data)) : std::nullopt;
}

std::span<const std::uint8_t> PngChunks::nextData() {
    if (left_ == 0) return {};
    const auto bytes = stream_.peek();
    const auto some = bytes.first(std::min<std::size_t>(bytes.size(), left_));
    checksum_ = checksumOf(checksum_, some);
    left_ -= static_cast<std::uint32_t>(some.size());
    stream_.consume(some.size());
    return some;
}

bool PngChunks::isIntact() {
    std::array<std::uint8_t, 4> expected{};
    return left_ == 0 && stream_.read(expected) && bigEndian32(expected.data()) == checksum_;
}

void PngChunks::skip() {
    constexpr std::int64_t checksumSize = 4;
    stream_.seek(stream_.position() + left_ + checksumSize);
    left_ = 0;
}

std::optional<PngHeader> readPngHeader(const InputFile& file) {
    std::array<std::uint8_t, 8> start{};
    if (file.read(0, start) != start.size() || start != signature) return std::nullopt;
    PngHeader header;
    append(header.drawingChunks, signature);
    PngChunks chunks(file);
    bool isFirst = true;
    for (;;) {
        const std::int64_t position = chunks.position();
        const auto chunk = chunks.next();
        if (!chunk || isFirst != chunk->is("IHDR")) return std::nullopt;
        isFirst = false;
        if (chunk->is("IDAT")) {
            header.dataPosition = position;
            return header;
        }
        if (chunk->is("IEND") || !readChunk(header, chunks, *chunk)) return std::nullopt;
    }
}

}  // namespace vantle::decoder
