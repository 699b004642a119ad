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

    /// Returns the size of the first representation in pixels; 0 × 0 for a vector image. Absent if
    /// the file holds no representation at all.
    virtual std::optional<Size> pixelSize() const = 0;

    /// Returns the size of the upright image in points.
    virtual Size pointSize() const = 0;

    /// Returns how many pages the file has: 1 unless it is a document.
    virtual int pageCount() const { return 1; }

    /// Chooses the page, counted from 0, that the other functions are about. Returns false if that
    /// page cannot be opened; then the chosen page stays.
    virtual bool selectPage(int page) { return page == 0; }

    /// Returns the image drawn to `size` points with high-quality interpolation, in as many pixels
    /// as the densest screen shows there, but never more than the file has. Returns null if the
    /// contents turn out to be damaged or incomplete.
    virtual ImagePointer draw(Size size) = 0;
};

/// A recording that could be opened.
class RecordingFile {
public:
    virtual ~RecordingFile() = default;

    /// Returns the duration in seconds; not a number if the file does not say.
    virtual double duration() const = 0;

    /// Returns the upright frame at `time` seconds, shrunk if needed so that neither side exceeds
    /// `maximumDimension` pixels; its size in points is its size in pixels. Returns null if there
    /// is no frame.
    virtual ImagePointer frame(double time, double maximumDimension) = 0;

    /// Returns the upright natural size of the first video track; absent if there is no video
    /// track.
    virtual std::optional<Size> videoTrackSize() const = 0;
};

/// Opens image and recording files. Files come from anywhere: whatever a file holds, each operation
/// ends within bounded time and memory, and a failed one returns nothing. Calls block. They may
/// come from any thread, one at a time.
class MediaLoader {
public:
    virtual ~MediaLoader() = default;

    /// Returns null if the file cannot be opened as an image.
    virtual std::unique_ptr<ImageFile> openImage(const Url& url) = 0;

    /// Does the same without waiting: holds the file, and opens it as an image when the object is
    /// first used. Returns null only if the file cannot be accessed. If the file turns out to be no
    /// image, the object has no size and draws nothing. A loader that opens files without waiting
    /// need not override this.
    virtual std::unique_ptr<ImageFile> holdImage(const Url& url) { return openImage(url); }

    /// Returns null if the file cannot be opened as a recording.
    virtual std::unique_ptr<RecordingFile> openRecording(const Url& url) = 0;
};

}  // namespace vantle
