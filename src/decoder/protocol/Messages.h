#pragma once

#include <array>
#include <cstdint>
#include <type_traits>

#include "filetypes/FileTypes.h"
#include "support/Geometry.h"
#include "support/PixelSize.h"

/// What the program and its decoder say to each other, over a Unix socket that keeps messages
/// apart. Both ends are of one build, so the structures travel as they are.
///
///   decoder → program   Hello, with a descriptor of the process
///   decoder → program   Ready, when the decoder has given up its rights
///   program → decoder   Request
///   decoder → program   Reply, but for close; and so on, nothing else is said
namespace vantle::decoder {

/// Before anything else. Carries a pidfd, by which the decoder can be ended.
struct Hello {};

/// A guard that this system does not have.
enum class Guard : std::uint32_t { fileSystem = 1, systemCalls = 2 };

struct Ready {
    std::uint32_t missingGuards = 0;  ///< Of Guard, added up.
};

enum class Operation : std::uint32_t { openImage, openRecording, draw, frame, close };

/// openImage and openRecording carry the descriptor of the file. If they are done the decoder keeps
/// it until close, or until another one is opened; draw and frame are about that file. Nothing
/// answers close.
struct Request {
    Operation operation = Operation::openImage;
    PixelSize target;             ///< Of draw.
    double time = 0;              ///< Of frame, in seconds.
    double maximumDimension = 0;  ///< Of frame, in pixels.
};

enum class Status : std::uint32_t {
    done,
    failed,       ///< The file cannot be opened, or not be drawn.
    otherFormat,  ///< The file's contents are those of `format`: ask its decoder.
};

/// A reply to draw or frame that is done carries the descriptor of shared memory, sealed so that
/// nobody can change it any more: premultiplied 8-bit red, green, blue, alpha, in rows from the top
/// and without padding, of the size `picture`.
struct Reply {
    Status status = Status::failed;
    Format format = Format::png;
    PixelSize pixelSize;  ///< Of the opened image; 0 × 0 of a vector image.
    Size size;            ///< Of the opened image in points, or of the recording's video track.
    std::uint32_t hasVideoTrack = 0;
    double duration = 0;  ///< Of the opened recording; not a number when unknown.
    PixelSize picture;
};

static_assert(std::is_trivially_copyable_v<Request> && std::is_trivially_copyable_v<Reply>);

/// The descriptor of the socket in a decoder's process.
constexpr int decoderSocket = 3;

/// A decoder ends this long after the last request, in seconds.
constexpr int decoderTimeout = 10;

/// The most that one picture may take, in bytes.
constexpr std::int64_t maximumPictureBytes = std::int64_t{256} * 1024 * 1024;

}  // namespace vantle::decoder
