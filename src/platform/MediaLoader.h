#pragma once

#include <memory>
#include <optional>

#include "support/Image.h"
#include "support/Url.h"

namespace vantle {

/// An image file that could be opened.
class ImageFile {
public:
    virtual ~ImageFile() = default;

    /// The pixels of the first representation; 0 × 0 for a vector image. Absent when the file
    /// holds no representation at all.
    virtual std::optional<Size> pixelSize() const = 0;

    /// What the upright image measures in points.
    virtual Size pointSize() const = 0;

    /// The image drawn to `size` points with high-quality interpolation, in as many pixels as the
    /// densest screen shows there, but never more than the file has. Null when the contents turn
    /// out to be damaged or incomplete.
    virtual ImagePointer draw(Size size) = 0;
};

/// A recording that could be opened.
class RecordingFile {
public:
    virtual ~RecordingFile() = default;

    /// Seconds; not a number when the file does not say.
    virtual double duration() const = 0;

    /// The upright frame at `time` seconds, shrunk where needed so that neither side exceeds
    /// `maximumDimension` pixels; its size in points is its size in pixels. Null when there is
    /// none.
    virtual ImagePointer frame(double time, double maximumDimension) = 0;

    /// The upright natural size of the first video track; absent when there is no video track.
    virtual std::optional<Size> videoTrackSize() const = 0;
};

/// Opens image and recording files. Files come from anywhere: whatever a file holds, an operation
/// ends in bounded time and memory, and failure is absence. Calls block; any one thread at a time.
class MediaLoader {
public:
    virtual ~MediaLoader() = default;

    /// Null when the file cannot be opened as an image.
    virtual std::unique_ptr<ImageFile> openImage(const Url& url) = 0;

    /// The same without waiting: the file is held, and opened as an image when something is asked
    /// of it for the first time. Null only when the file cannot be had; when it turns out to be no
    /// image, it has no size and draws nothing. Where opening does not wait, that is all it does.
    virtual std::unique_ptr<ImageFile> holdImage(const Url& url) { return openImage(url); }

    /// Null when the file cannot be opened as a recording.
    virtual std::unique_ptr<RecordingFile> openRecording(const Url& url) = 0;
};

}  // namespace vantle
