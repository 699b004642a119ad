#include "platform/qt/ImageStructure.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace vantle {
namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::array<std::uint8_t, 8> pngSignature = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n'};
constexpr double inchesPerMetre = 1 / 0.0254;
constexpr double inchesPerCentimetre = 1 / 2.54;

bool startsWith(Bytes bytes, Bytes prefix) {
    return bytes.size() >= prefix.size() && std::ranges::equal(bytes.first(prefix.size()), prefix);
}

bool startsWith(Bytes bytes, std::string_view prefix) {
    return bytes.size() >= prefix.size() &&
           std::ranges::equal(bytes.first(prefix.size()), prefix,
                              [](std::uint8_t byte, char character) {
                                  return byte == static_cast<std::uint8_t>(character);
                              });
}

std::uint32_t bigEndian(Bytes bytes, std::size_t offset, std::size_t length) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < length; ++i) value = value << 8 | bytes[offset + i];
    return value;
}

/// Whole, since the units of the formats cannot hold 144 dots an inch exactly.
double resolution(double dots, double unitsPerInch) {
    const double rounded = std::round(dots / unitsPerInch);
    return rounded >= 1 ? rounded : ImageStructure().dotsPerInch;
}

ImageStructure pngStructure(Bytes file) {
    ImageStructure structure;
    constexpr std::size_t frame = 12;  // length, type, checksum
    file = file.subspan(pngSignature.size());
    while (file.size() >= frame) {
        const std::size_t length = bigEndian(file, 0, 4);
        if (length > file.size() - frame) break;
        const Bytes type = file.subspan(4);
        const bool isMetric =
            startsWith(type, std::string_view("pHYs")) && length >= 9 && file[16] == 1;
        if (isMetric) structure.dotsPerInch = resolution(bigEndian(file, 8, 4), inchesPerMetre);
        if (startsWith(type, std::string_view("IEND"))) {
            structure.isComplete = true;
            break;
        }
        file = file.subspan(frame + length);
    }
    return structure;
}

double jfifResolution(Bytes segment) {
    constexpr std::uint8_t perInch = 1;
    constexpr std::uint8_t perCentimetre = 2;
    const std::uint32_t density = bigEndian(segment, 10, 2);
    if (segment[9] == perInch) return resolution(density, 1);
    if (segment[9] == perCentimetre) return resolution(density, inchesPerCentimetre);
    return ImageStructure().dotsPerInch;
}

/// Whether this marker stands alone, without a segment behind it.
bool standsAlone(std::uint8_t marker) {
    return marker == 0x01 || (marker >= 0xd0 && marker <= 0xd8);
}

ImageStructure jpegStructure(Bytes file) {
    constexpr std::uint8_t endOfImage = 0xd9;
    ImageStructure structure;
    for (std::size_t i = 2; i + 1 < file.size();) {
        // Between segments there are scans: their bytes FF are followed by 00 or a restart marker.
        const std::uint8_t marker = file[i + 1];
        const bool isMarker = file[i] == 0xff && marker != 0x00 && marker != 0xff;
        if (!isMarker || standsAlone(marker)) {
            i += isMarker ? 2 : 1;
            continue;
        }
        if (marker == endOfImage) {
            structure.isComplete = true;
            break;
        }
        if (i + 4 > file.size()) break;
        const std::size_t length = bigEndian(file, i + 2, 2);
        const Bytes segment = file.subspan(i + 2, std::min(length, file.size() - i - 2));
        if (marker == 0xe0 && segment.size() >= 12 &&
            startsWith(segment.subspan(2), std::string_view("JFIF")))
            structure.dotsPerInch = jfifResolution(segment.subspan(0));
        i += 2 + std::max<std::size_t>(length, 2);
    }
    return structure;
}

}  // namespace

std::optional<ImageStructure> imageStructure(std::span<const std::uint8_t> file) {
    constexpr std::array<std::uint8_t, 3> jpegSignature = {0xff, 0xd8, 0xff};
    if (startsWith(file, Bytes(pngSignature))) return pngStructure(file);
    if (startsWith(file, Bytes(jpegSignature))) return jpegStructure(file);
    return std::nullopt;
}

}  // namespace vantle
