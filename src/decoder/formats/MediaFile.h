#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "decoder/formats/InputFile.h"
#include "decoder/reduction/Picture.h"
#include "support/Geometry.h"

namespace vantle::decoder {

/// An open image file. All its sizes refer to the upright picture.
class StillImage {
public:
    virtual ~StillImage() = default;

    /// Returns 0 × 0 for a vector image.
    virtual PixelSize pixelSize() const = 0;
    virtual Size pointSize() const = 0;

    virtual int pageCount() const { return 1; }
    /// Chooses the page, counted from 0, that the other functions are about. Returns false and
    /// changes nothing if that page cannot be opened.
    virtual bool selectPage(int page) { return page == 0; }

    /// Draws the upright picture in `target` pixels, which must be at least 1 × 1 and, unless this
    /// is a vector image, at most pixelSize(). Returns std::nullopt if the contents are damaged or
    /// incomplete.
    virtual std::optional<Picture> draw(PixelSize target) = 0;
};

/// An open recording.
class Recording {
public:
    virtual ~Recording() = default;

    /// Returns the duration in seconds; not a number if the file does not say.
    virtual double duration() const = 0;
    /// Returns the upright natural size of the first video track; std::nullopt if there is none.
    virtual std::optional<Size> videoTrackSize() const = 0;
    /// Returns the upright frame at `time` seconds, shrunk if necessary so that neither side
    /// exceeds `maximumDimension` pixels; std::nullopt if no frame can be decoded. A time that is
    /// not a number means the beginning.
    virtual std::optional<Picture> frame(double time, double maximumDimension) = 0;
};

/// The functions of one format's module. They may throw std::exception if memory or threads run
/// out.
struct FormatModule {
    /// Called once, before the process gives up its rights; null if there is nothing to prepare.
    /// Returns the paths of system files that the module must read later.
    std::vector<std::string> (*prepare)();
    /// Both functions return null if the file is not of this format. A module for recordings has no
    /// openImage (null), a module for images no openRecording.
    std::unique_ptr<StillImage> (*openImage)(const InputFile& file);
    std::unique_ptr<Recording> (*openRecording)(const InputFile& file);
};

/// The name of the function that returns a module's FormatModule.
constexpr auto moduleEntry = "vantleFormatModule";
using ModuleEntry = const FormatModule* (*)();

}  // namespace vantle::decoder

#define VANTLE_FORMAT_MODULE(...)                                                  \
    extern "C" [[gnu::visibility("default")]] const vantle::decoder::FormatModule* \
    vantleFormatModule() {                                                         \
        static const vantle::decoder::FormatModule module{__VA_ARGS__};            \
        return &module;                                                            \
    }
