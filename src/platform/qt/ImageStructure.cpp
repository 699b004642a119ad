#include "platform/qt/ImageStructure.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace vantle {
namespace {

using Bytes = std::span<const std::uint8_t>;
using Resolution = ImageStructure::Resolution;

constexpr std::string_view pngSignature = "\x89PNG\r\n\x1a\n";
constexpr std::string_view jpegSignature = "\xff\xd8\xff";
constexpr std::string_view gifSignature = "GIF8";
constexpr double inchesPerMetre = 1 / 0.0254;
constexpr double inchesPerCentimetre = 1 / 2.54;

std::string_view text(Bytes bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

/// Big-endian, as PNG and JPEG have it.
std::uint32_t number(Bytes bytes) {
    std::uint32_t value = 0;
    for (const std::uint8_t byte : bytes) value = value << 8 | byte;
    return value;
}

/// In whole dots, because 144 an inch is no whole number of dots a metre.
Resolution resolution(std::uint32_t across, std::uint32_t down, double unitsPerInch) {
    const Resolution inch{std::round(across / unitsPerInch), std::round(down / unitsPerInch)};
    return inch.across >= 1 && inch.down >= 1 ? inch : Resolution();
}

std::uint32_t checksum(Bytes bytes) {
    static const auto table = [] {
        std::array<std::uint32_t, 256> remainders{};
        for (std::uint32_t i = 0; i < remainders.size(); ++i) {
            remainders[i] = i;
            for (int bit = 0; bit < 8; ++bit)
                remainders[i] = remainders[i] >> 1 ^ (remainders[i] & 1 ? 0xedb88320 : 0);
        }
        return remainders;
    }();
    std::uint32_t remainder = 0xffffffff;
    for (const std::uint8_t byte : bytes)
        remainder = table[(remainder ^ byte) & 0xff] ^ remainder >> 8;
    return ~remainder;
}

struct PngChunk {
    std::string_view type;
    Bytes data;
    Bytes checked;  ///< What its checksum covers.
    std::uint32_t checksum = 0;
    std::size_t end = 0;  ///< Where the next one begins.
};

/// The chunk that begins at `offset`; absent when the file ends within it.
std::optional<PngChunk> pngChunk(Bytes file, std::size_t offset) {
    constexpr std::size_t frame = 12;  // length, type, checksum
    if (file.size() - offset < frame) return std::nullopt;
    const std::size_t length = number(file.subspan(offset, 4));
    if (length > file.size() - offset - frame) return std::nullopt;
    return PngChunk{.type = text(file.subspan(offset + 4, 4)),
                    .data = file.subspan(offset + 8, length),
                    .checked = file.subspan(offset + 4, length + 4),
                    .checksum = number(file.subspan(offset + 8 + length, 4)),
                    .end = offset + frame + length};
}

bool belongsToPicture(std::string_view type) {
    constexpr std::array<std::string_view, 9> types = {"IHDR", "PLTE", "tRNS", "cHRM", "gAMA",
                                                       "iCCP", "sRGB", "IDAT", "IEND"};
    return std::ranges::find(types, type) != types.end();
}

ImageStructure pngStructure(Bytes file) {
    constexpr std::uint8_t perMetre = 1;
    ImageStructure structure{ImageStructure::Format::png};
    std::size_t offset = pngSignature.size();
    while (const auto chunk = pngChunk(file, offset)) {
        if (belongsToPicture(chunk->type) && checksum(chunk->checked) != chunk->checksum) break;
        const Bytes data = chunk->data;
        if (chunk->type == "pHYs" && data.size() == 9 && data[8] == perMetre)
            structure.dotsPerInch =
                resolution(number(data.first(4)), number(data.subspan(4, 4)), inchesPerMetre);
        if (chunk->type == "IEND") {
            structure.isComplete = true;
            break;
        }
        offset = chunk->end;
    }
    return structure;
}

Resolution jfifResolution(Bytes segment) {
    constexpr std::uint8_t perInch = 1;
    constexpr std::uint8_t perCentimetre = 2;
    if (segment.size() < 12 || !text(segment).starts_with(std::string_view("JFIF\0", 5))) return {};
    const std::uint32_t across = number(segment.subspan(8, 2));
    const std::uint32_t down = number(segment.subspan(10, 2));
    if (segment[7] == perInch) return resolution(across, down, 1);
    if (segment[7] == perCentimetre) return resolution(across, down, inchesPerCentimetre);
    return {};
}

/// Whether this marker comes without a segment of its own.
bool standsAlone(std::uint8_t marker) {
    return marker == 0x01 || (marker >= 0xd0 && marker <= 0xd8);
}

ImageStructure jpegStructure(Bytes file) {
    constexpr std::uint8_t application0 = 0xe0;
    constexpr std::uint8_t startOfScan = 0xda;
    constexpr std::uint8_t endOfImage = 0xd9;
    // Each scan goes over the whole picture; encoders write about ten, attackers thousands.
    constexpr int mostScans = 100;

    ImageStructure structure{ImageStructure::Format::jpeg};
    int scans = 0;
    for (std::size_t i = 2; i + 1 < file.size() && scans <= mostScans;) {
        // In a scan a byte FF is followed by 00, by a restart marker, or by more of FF.
        const std::uint8_t marker = file[i + 1];
        const bool isMarker = file[i] == 0xff && marker != 0x00 && marker != 0xff;
        if (isMarker && marker == endOfImage) {
            structure.isComplete = true;
            break;
        }
        if (!isMarker || standsAlone(marker)) {
            i += isMarker ? 2 : 1;
            continue;
        }
        if (marker == startOfScan) ++scans;
        if (file.size() - i < 4) break;
        const std::size_t length = std::max(number(file.subspan(i + 2, 2)), 2U);
        if (length > file.size() - i - 2) break;
        if (marker == application0)
            structure.dotsPerInch = jfifResolution(file.subspan(i + 4, length - 2));
        i += 2 + length;
    }
    return structure;
}

/// How long the table of colours is that this byte of flags announces.
std::size_t gifColors(std::uint8_t flags) {
    return flags & 0x80 ? std::size_t{3} << ((flags & 0x07) + 1) : 0;
}

ImageStructure gifStructure(Bytes file) {
    constexpr std::size_t header = 13;
    constexpr std::size_t imageHeader = 10;
    constexpr std::uint8_t trailer = 0x3b;
    constexpr std::uint8_t image = 0x2c;

    ImageStructure structure{ImageStructure::Format::gif};
    if (file.size() < header) return structure;
    std::size_t i = header + gifColors(file[10]);
    while (i + imageHeader < file.size() && file[i] != trailer) {
        // Behind the header of an image or of an extension stand data blocks, up to an empty one.
        i += file[i] == image ? imageHeader + gifColors(file[i + 9]) + 1 : 2;
        while (i < file.size() && file[i] != 0) i += std::size_t{1} + file[i];
        ++i;
    }
    structure.isComplete = i < file.size() && file[i] == trailer;
    return structure;
}

}  // namespace

std::optional<ImageStructure> imageStructure(std::span<const std::uint8_t> file) {
    if (text(file).starts_with(pngSignature)) return pngStructure(file);
    if (text(file).starts_with(jpegSignature)) return jpegStructure(file);
    if (text(file).starts_with(gifSignature)) return gifStructure(file);
    return std::nullopt;
}

std::size_t keepPictureOfPng(std::span<std::uint8_t> file) {
    std::size_t end = pngSignature.size();
    std::size_t offset = end;
    while (const auto chunk = pngChunk(file, offset)) {
        const std::size_t next = chunk->end;
        if (belongsToPicture(chunk->type)) {
            const auto kept = file.subspan(offset, next - offset);
            std::ranges::copy(kept, file.subspan(end).begin());
            end += kept.size();
        }
        offset = next;
    }
    return end;
}

}  // namespace vantle
