#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "filetypes/FileTypes.h"
#include "platform/CaptureExtensions.h"
#include "platform/MediaLoader.h"
#include "support/Date.h"
#include "support/Geometry.h"
#include "support/Image.h"
#include "support/UUID.h"
#include "support/Url.h"

namespace vantle {

/// One screenshot or recording on disk. It is created once, filled once by loadThumbnail() on one
/// thread, and then passed to the main thread, which only reads it. Deleting the file does not
/// change it.
class Capture {
public:
    static constexpr double defaultMaximumDimension = 800;

    /// The extensions of files that the tools of every system write, in lowercase, without the dot.
    static constexpr auto imageExtensions =
        extensionsOf<CaptureKind::image, FileType::Origin::everySystem>();
    static constexpr auto videoExtensions =
        extensionsOf<CaptureKind::video, FileType::Origin::everySystem>();

    /// Returns the kind of the file by its whole extension alone, regardless of case; std::nullopt
    /// if a file with this name cannot be a capture. `more` adds extensions to those of every
    /// system.
    static std::optional<CaptureKind> kind(const Url& url, const CaptureExtensions& more = {});

    /// Returns null if the file's extension is not a capture's. Does not access the file.
    static std::shared_ptr<Capture> create(const Url& url, Date date,
                                           const CaptureExtensions& more = {});

    const UUID& id() const { return id_; }
    const Url& url() const { return url_; }
    Date date() const { return date_; }
    CaptureKind kind() const { return kind_; }

    /// Returns null until the thumbnail is loaded, and if loading failed.
    const ImagePointer& thumbnail() const { return thumbnail_; }
    /// Returns the full resolution of the upright picture; zero until loaded.
    Size pixelSize() const { return pixelSize_; }
    /// Returns the duration in seconds; 0 for images and until loaded.
    double duration() const { return duration_; }

    /// Returns the last component of the path, with its extension.
    std::string fileName() const { return std::string(url_.lastPathComponent()); }

    /// Reads the file and fills thumbnail(), pixelSize() and, for a recording, duration(). The
    /// thumbnail's longer side is at most `maximumDimension` points. Blocks. On failure, the fields
    /// that were not read keep their values.
    void loadThumbnail(MediaLoader& media, double maximumDimension = defaultMaximumDimension);

    /// Returns a copy for a list of many captures, with the thumbnail shrunk to fit into
    /// `pixelsWide` × `pixelsHigh`.
    std::shared_ptr<const Capture> withSmallThumbnail(int pixelsWide, int pixelsHigh) const;

    /// Returns this capture after its file was renamed to `url`: the same identity, thumbnail and
    /// date.
    std::shared_ptr<const Capture> renamed(const Url& url) const;

private:
    Capture(Url url, Date date, CaptureKind kind);
    Capture(const Capture&) = default;

    void loadImage(MediaLoader& media, double maximumDimension);
    void loadRecording(MediaLoader& media, double maximumDimension);

    UUID id_;
    Url url_;
    Date date_;
    CaptureKind kind_;
    ImagePointer thumbnail_;
    Size pixelSize_;
    double duration_ = 0;
};

/// A delivered capture. It is read-only and shared by all views that show it.
using CapturePointer = std::shared_ptr<const Capture>;

/// Returns the files of captures, in the same order.
std::vector<Url> urlsOf(const std::vector<CapturePointer>& captures);

/// Returns true if both captures are of the same file.
inline bool operator==(const Capture& a, const Capture& b) {
    return a.url() == b.url();
}

}  // namespace vantle
