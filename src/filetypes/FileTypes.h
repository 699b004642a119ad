#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string_view>

#include "filetypes/CaptureKind.h"
#include "support/Lowercase.h"

/// The types of files that can be captures, with everything that the watcher, the decoder, the
/// clipboard and drags need to know about them. A new type needs a row in fileTypes, and a Format
/// if none of the decoder's modules opens it yet.
namespace vantle {

/// The formats that can be opened. The decoder has a separate module for each.
enum class Format : std::uint32_t { png, jpeg, gif, tiff, heic, webp, pdf, recording };

constexpr std::array<std::string_view, 8> formatNames = {"png",  "jpeg", "gif", "tiff",
                                                         "heic", "webp", "pdf", "recording"};

constexpr std::string_view formatName(Format format) {
    return formatNames[static_cast<std::size_t>(format)];
}

constexpr std::optional<Format> formatNamed(std::string_view text) {
    for (std::size_t i = 0; i < formatNames.size(); ++i)
        if (formatNames[i] == text) return static_cast<Format>(i);
    return std::nullopt;
}

/// Up to six texts.
class ShortList {
public:
    constexpr ShortList() = default;
    constexpr ShortList(std::initializer_list<std::string_view> texts) : size_(texts.size()) {
        std::ranges::copy(texts, texts_.begin());
    }

    constexpr const std::string_view* begin() const { return texts_.data(); }
    constexpr const std::string_view* end() const { return begin() + size_; }
    constexpr std::size_t size() const { return size_; }

private:
    std::array<std::string_view, 6> texts_{};
    std::size_t size_ = 0;
};

/// A row of the table.
struct FileType {
    /// The tools that write captures of the type.
    enum class Origin { everySystem, linuxTools };

    /// The text that a complete file has within its last `within` bytes. It need not be the very
    /// end, because some tools append data.
    struct Ending {
        std::string_view text;
        std::size_t within = 0;
    };

    Format format;
    CaptureKind kind = CaptureKind::image;
    Origin origin = Origin::everySystem;
    /// In lowercase, without the dot. A row without extensions only serves to recognise contents.
    ShortList extensions{};
    /// The media type under which other programs are offered the file as it is. Empty if few of
    /// them could read it; they get the picture in another type.
    std::string_view mediaType{};
    /// A file of the type begins with one of these, in which '?' stands for any byte.
    ShortList signatures{};
    /// True if a signature may be anywhere in the first `signatureReach` bytes.
    bool mayBeginLater = false;
    /// Empty if the end of a file does not show whether it is complete.
    Ending ending{};
};

/// The contents of a file are of the first type whose signature it has.
inline constexpr std::array fileTypes = {
    FileType{.format = Format::png,
             .extensions = {"png"},
             .mediaType = "image/png",
             .signatures = {"\x89PNG\r\n\x1a\n"},
             .ending = {"IEND\xae\x42\x60\x82", std::size_t{64} * 1024}},
    FileType{.format = Format::jpeg,
             .extensions = {"jpg", "jpeg"},
             .mediaType = "image/jpeg",
             .signatures = {"\xff\xd8\xff"},
             .ending = {"\xff\xd9", std::size_t{64} * 1024}},
    FileType{.format = Format::heic,
             .extensions = {"heic"},
             .mediaType = "image/heic",
             .signatures = {"????ftypheic", "????ftypheix", "????ftypheim", "????ftypheis"}},
    FileType{.format = Format::heic, .mediaType = "image/heif", .signatures = {"????ftypmif1"}},
    FileType{.format = Format::heic,
             .origin = FileType::Origin::linuxTools,
             .extensions = {"avif"},
             .mediaType = "image/avif",
             .signatures = {"????ftypavif"}},
    // Sequences of the images above.
    FileType{.format = Format::heic,
             .signatures = {"????ftyphevc", "????ftyphevx", "????ftypmsf1", "????ftypavis"}},
    FileType{.format = Format::tiff,
             .extensions = {"tiff", "tif"},
             .mediaType = "image/tiff",
             .signatures = {std::string_view("II*\0", 4), std::string_view("MM\0*", 4)}},
    // BigTIFF.
    FileType{.format = Format::tiff,
             .signatures = {std::string_view("II+\0", 4), std::string_view("MM\0+", 4)}},
    FileType{.format = Format::gif,
             .extensions = {"gif"},
             .mediaType = "image/gif",
             .signatures = {"GIF87a", "GIF89a"},
             .ending = {";", 64}},
    FileType{.format = Format::webp,
             .origin = FileType::Origin::linuxTools,
             .extensions = {"webp"},
             .mediaType = "image/webp",
             .signatures = {"RIFF????WEBP"}},
    FileType{.format = Format::pdf,
             .extensions = {"pdf"},
             .mediaType = "application/pdf",
             .signatures = {"%PDF-"}},
    // Matroska, including WebM.
    FileType{.format = Format::recording,
             .kind = CaptureKind::video,
             .origin = FileType::Origin::linuxTools,
             .extensions = {"webm", "mkv"},
             .signatures = {"\x1a\x45\xdf\xa3"}},
    // The files of older recorders do not begin with the box that names the brand.
    FileType{.format = Format::recording,
             .kind = CaptureKind::video,
             .extensions = {"mov", "mp4", "m4v"},
             .signatures = {"????ftyp????", "????moov????", "????mdat????", "????wide????",
                            "????free????", "????skip????"}},
    // Some programs write other bytes before the header.
    FileType{.format = Format::pdf, .signatures = {"%PDF-"}, .mayBeginLater = true},
};

/// This many bytes of a file's beginning show its type.
inline constexpr std::size_t signatureReach = 1024;

/// Returns the type with this extension, regardless of case; null if it is not a capture's.
constexpr const FileType* fileTypeNamed(std::string_view extension) {
    const auto found = std::ranges::find_if(fileTypes, [extension](const FileType& type) {
        return std::ranges::any_of(type.extensions, [extension](std::string_view candidate) {
            return std::ranges::equal(candidate, extension, {}, {}, lowercase);
        });
    });
    return found != fileTypes.end() ? &*found : nullptr;
}

namespace filetypes {

constexpr bool hasSignature(std::string_view start, std::string_view signature) {
    return start.size() >= signature.size() &&
           std::ranges::equal(
               signature, start.substr(0, signature.size()),
               [](char expected, char byte) { return expected == '?' || expected == byte; });
}

constexpr bool isOfType(std::string_view start, const FileType& type) {
    return std::ranges::any_of(type.signatures, [&](std::string_view signature) {
        return type.mayBeginLater ? start.find(signature) != std::string_view::npos
                                  : hasSignature(start, signature);
    });
}

consteval std::size_t countExtensions(CaptureKind kind, FileType::Origin origin) {
    std::size_t count = 0;
    for (const FileType& type : fileTypes)
        if (type.kind == kind && type.origin == origin) count += type.extensions.size();
    return count;
}

}  // namespace filetypes

/// Returns the type of a file's contents. `start` is the first `signatureReach` bytes of the file,
/// or all of a shorter file. Returns null if the type is not a capture's.
constexpr const FileType* fileTypeOf(std::string_view start) {
    const auto found = std::ranges::find_if(fileTypes, [start](const FileType& type) {
        return filetypes::isOfType(start.substr(0, signatureReach), type);
    });
    return found != fileTypes.end() ? &*found : nullptr;
}

/// Returns the extensions of all types of this kind and origin, in the table's order.
template <CaptureKind kind, FileType::Origin origin>
consteval auto extensionsOf() {
    std::array<std::string_view, filetypes::countExtensions(kind, origin)> extensions;
    auto next = extensions.begin();
    for (const FileType& type : fileTypes)
        if (type.kind == kind && type.origin == origin)
            next = std::ranges::copy(type.extensions, next).out;
    return extensions;
}

}  // namespace vantle
