#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "decoder/formats/InputFile.h"
#include "decoder/reduction/Picture.h"
#include "support/Geometry.h"

namespace vantle::decoder {

/// An image of one format, opened. Its sizes are those of the upright picture.
class StillImage {
public:
    virtual ~StillImage() = default;

    /// 0 × 0 for a vector image.
    virtual PixelSize pixelSize() const = 0;
    virtual Size pointSize() const = 0;

    /// The upright picture in `target` pixels, which are at least 1 × 1 and, unless the image is a
    /// vector image, not more than it has. Absent when the contents are damaged or incomplete.
    virtual std::optional<Picture> draw(PixelSize target) = 0;
};

/// A recording, opened.
class Recording {
public:
    virtual ~Recording() = default;

    /// Seconds; not a number when the file does not say.
    virtual double duration() const = 0;
    /// The upright natural size of the first video track.
    virtual std::optional<Size> videoTrackSize() const = 0;
    /// The upright frame at `time` seconds, shrunk where needed so that neither side exceeds
    /// `maximumDimension`. A time that is not a number means the beginning.
    virtual std::optional<Picture> frame(double time, double maximumDimension) = 0;
};

/// What one format's module offers. The functions may throw
/// std::exception where memory or threads are short.
struct FormatModule {
    /// Called once, before the process gives up its rights; null when there is nothing to prepare.
    /// Gives the paths of files that belong to the system and that the module has to read later.
    std::vector<std::string> (*prepare)();
    /// Null when the file is no image of this format, or when this is a format of recordings.
    std::unique_ptr<StillImage> (*openImage)(const InputFile& file);
    std::unique_ptr<Recording> (*openRecording)(const InputFile& file);
};

/// The name of the function by which a module gives its FormatModule.
constexpr auto moduleEntry = "vantleFormatModule";
using ModuleEntry = const FormatModule* (*)();

}  // namespace vantle::decoder

#define VANTLE_FORMAT_MODULE(...)                                                  \
    extern "C" [[gnu::visibility("default")]] const vantle::decoder::FormatModule* \
    vantleFormatModule() {                                                         \
        static const vantle::decoder::FormatModule module{__VA_ARGS__};            \
        return &module;                                                            \
    }
