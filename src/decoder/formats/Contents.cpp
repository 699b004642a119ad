#include "decoder/formats/Contents.h"

#include <algorithm>
#include <array>

namespace vantle::decoder {
namespace {

using namespace std::string_view_literals;

/// Files of the ISO base media format begin with a box that names their brand.
std::optional<Format> formatOfBoxes(std::string_view start) {
    constexpr std::array imageBrands = {"heic"sv, "heix"sv, "heim"sv, "heis"sv, "hevc"sv,
                                        "hevx"sv, "mif1"sv, "msf1"sv, "avif"sv, "avis"sv};
    // Older recorders begin with other boxes than the one that names the brand.
    constexpr std::array boxes = {"ftyp"sv, "moov"sv, "mdat"sv, "wide"sv, "free"sv, "skip"sv};
    if (start.size() < 12 || std::ranges::find(boxes, start.substr(4, 4)) == boxes.end())
        return std::nullopt;
    const bool isImage = start.substr(4, 4) == "ftyp" &&
                         std::ranges::find(imageBrands, start.substr(8, 4)) != imageBrands.end();
    return isImage ? Format::heic : Format::recording;
}

}  // namespace

std::optional<Format> formatOf(const InputFile& file) {
    std::array<std::uint8_t, 1024> bytes{};
    const std::string_view start = text(std::span(bytes).first(file.read(0, bytes)));
    if (start.starts_with("\x89PNG\r\n\x1a\n")) return Format::png;
    if (start.starts_with("\xff\xd8\xff")) return Format::jpeg;
    if (start.starts_with("GIF87a") || start.starts_with("GIF89a")) return Format::gif;
    if (start.starts_with("II*\0"sv) || start.starts_with("MM\0*"sv) ||
        start.starts_with("II+\0"sv) || start.starts_with("MM\0+"sv))
        return Format::tiff;
    if (start.starts_with("RIFF") && start.find("WEBP") == 8) return Format::webp;
    // Matroska, of which WebM is one kind.
    if (start.starts_with("\x1a\x45\xdf\xa3")) return Format::recording;
    // Other programs may write something before the header.
    if (start.find("%PDF-") != std::string_view::npos) return Format::pdf;
    return formatOfBoxes(start);
}

}  // namespace vantle::decoder
