#pragma once

#include <cstdint>
#include <type_traits>

#include "support/PixelSize.h"

/// The messages between the program and its text reader, over a Unix socket that preserves message
/// boundaries (decoder/protocol/MessageSocket.h). Both ends come from the same build, so the
/// structures are sent as they are. A reader serves one picture and ends.
///
///   reader → program   Report: ready, when the reader has given up its rights
///   program → reader   Picture
///   reader → program   Reports: progress, any number of them, and last text
///
/// Instead of any report, and then last, the reader may send unavailable or outOfMemory.
namespace vantle::reader {

/// Carries the descriptor of sealed memory, which holds premultiplied 8-bit red, green, blue and
/// alpha, in rows from the top without padding.
struct Picture {
    PixelSize size;
};

enum class Stage : std::uint32_t {
    ready,
    progress,
    text,         ///< Carries the descriptor of sealed memory that holds the text in UTF-8.
    unavailable,  ///< The library or the data of a language cannot be loaded.
    outOfMemory,
};

struct Report {
    Stage stage = Stage::ready;
    double fraction = 0;          ///< Used by progress: how much is done, from 0 to 1.
    std::int64_t textLength = 0;  ///< Used by text, in bytes.
};

static_assert(std::is_trivially_copyable_v<Picture> && std::is_trivially_copyable_v<Report>);

/// The file of Tesseract's library. The reader loads it and does not link it, so that Vantle can be
/// installed without it.
constexpr auto recognitionLibrary = "libtesseract.so.5";

/// The longest text in bytes; no screen holds as much.
constexpr std::int64_t maximumTextLength = std::int64_t{8} * 1024 * 1024;

}  // namespace vantle::reader
