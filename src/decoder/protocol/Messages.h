#pragma once

#include <array>
#include <cstdint>
#include <type_traits>

#include "filetypes/FileTypes.h"
#include "support/Geometry.h"
#include "support/PixelSize.h"

/// The messages between the program and its decoder, over a Unix socket that preserves message
/// boundaries. Both ends come from the same build, so the structures are sent as they are.
///
///   decoder → program   Hello, with a descriptor of the process
///   decoder → program   Ready, when the decoder has given up its rights
///   program → decoder   Request
///   decoder → program   Reply, except to close; then the next Request
namespace vantle::decoder {

/// The first message. It carries a pidfd with which the program can end the decoder.
struct Hello {};

/// A guard of confine() that a system may lack.
enum class Guard : std::uint32_t { fileSystem = 1, systemCalls = 2 };

struct Ready {
    std::uint32_t missingGuards = 0;  ///< The sum of Guard values.
};

enum class Operation : std::uint32_t { openImage, openRecording, page, draw, frame, close };

/// openImage and openRecording carry the descriptor of the file. If they succeed, the decoder keeps
/// it until close, or until another file is opened; page, draw and frame apply to that file. There
/// is no reply to close. The reply to page describes that page; draw names it again, because
/// another decoder may have taken over in between.
struct Request {
    Operation operation = Operation::openImage;
    std::int32_t page = 0;        ///< Used by page and draw, from 0.
    PixelSize target;             ///< Used by draw.
    double time = 0;              ///< Used by frame, in seconds.
    double maximumDimension = 0;  ///< Used by frame, in pixels.
};

enum class Status : std::uint32_t {
    done,
    failed,       ///< The file cannot be opened or drawn.
    otherFormat,  ///< The file is in `format`, so that format's decoder must open it.
};

/// A successful reply to draw or frame carries the descriptor of shared memory, which is sealed so
/// that nobody can change it any more. It holds premultiplied 8-bit red, green, blue and alpha, in
/// rows from the top without padding, of the size `picture`.
struct Reply {
    Status status = Status::failed;
    Format format = Format::png;
    PixelSize pixelSize;         ///< The size of the image or page; 0 × 0 for a vector image.
    Size size;                   ///< The same in points, or the video track's size.
    std::int32_t pageCount = 1;  ///< Of the opened image.
    std::uint32_t hasVideoTrack = 0;
    double duration = 0;  ///< The opened recording's duration in seconds; not a number if unknown.
    PixelSize picture;
};

static_assert(std::is_trivially_copyable_v<Request> && std::is_trivially_copyable_v<Reply>);

/// The descriptor of the socket in a decoder's process.
constexpr int decoderSocket = 3;

/// Seconds after the last request at which a decoder ends.
constexpr int decoderTimeout = 10;

/// The largest size of one picture in bytes.
constexpr std::int64_t maximumPictureBytes = std::int64_t{256} * 1024 * 1024;

}  // namespace vantle::decoder
