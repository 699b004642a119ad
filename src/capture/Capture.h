#pragma once

#include <memory>
#include <optional>
#include <string>

#include "filetypes/FileTypes.h"
#include "platform/CaptureExtensions.h"
#include "platform/MediaLoader.h"
#include "support/Date.h"
#include "support/Geometry.h"
#include "support/Image.h"
#include "support/UUID.h"
#include "support/Url.h"

namespace vantle {

/// One screenshot or recording on disk. Made once, filled once by loadThumbnail() on one thread,
/// then handed to the main thread, which only reads it. Deleting the file does not change it.
class Capture {
public:
    static constexpr double defaultMaximumDimension = 800;

    /// Of what every system's tools write: in lowercase, without the dot.
    static constexpr auto imageExtensions =
        extensionsOf<CaptureKind::image, FileType::Origin::everySystem>();
    static constexpr auto videoExtensions =
        extensionsOf<CaptureKind::video, FileType::Origin::everySystem>();

    /// The kind of the file, by its extension alone, whole and without regard to case; absent when
    /// a file of that name cannot be a capture. `more` extensions count besides those of every
    /// system.
    static std::optional<CaptureKind> kind(const Url& url, const CaptureExtensions& more = {});

    /// Null when the file's extension is not a capture's. Does not touch the file.
    static std::shared_ptr<Capture> create(const Url& url, Date date,
                                           const CaptureExtensions& more = {});

    const UUID& id() const { return id_; }
    const Url& url() const { return url_; }
    Date date() const { return date_; }
    CaptureKind kind() const { return kind_; }

    /// Null until loaded, and when loading failed.
    const ImagePointer& thumbnail() const { return thumbnail_; }
    /// The full resolution, upright; zero until loaded.
    Size pixelSize() const { return pixelSize_; }
    /// Seconds; 0 for images and until loaded.
    double duration() const { return duration_; }

    /// The last component of the path, with its extension.
    std::string fileName() const { return std::string(url_.lastPathComponent()); }

    /// Reads the file and fills thumbnail(), pixelSize() and, for a recording, duration(). The
    /// thumbnail's longer side is at most `maximumDimension` points. Blocks. On a failure the
    /// fields that were not reached keep their values.
    void loadThumbnail(MediaLoader& media, double maximumDimension = defaultMaximumDimension);

    /// The same capture, for a list of many: its thumbnail has only as many pixels as fit into that
    /// room.
    std::shared_ptr<const Capture> withSmallThumbnail(int pixelsWide, int pixelsHigh) const;

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

/// Read-only once delivered, and shared by all who show it.
using CapturePointer = std::shared_ptr<const Capture>;

/// The same file, whatever else.
inline bool operator==(const Capture& a, const Capture& b) {
    return a.url() == b.url();
}

}  // namespace vantle
