#pragma once

#include <QByteArray>
#include <QStringList>
#include <memory>

#include "platform/MediaLoader.h"
#include "platform/Pasteboard.h"
#include "support/FileDescriptor.h"

namespace vantle {

/// The contents of an image file, as other programs take them: its own bytes and, on request, the
/// same picture in the types that most programs accept. The file is kept open, so the contents
/// remain available when it is moved or deleted. Main thread only.
class PictureContents final : public PasteboardImage {
public:
    /// Returns null if the file cannot be opened or is truncated. Does not check that it holds an
    /// image; that shows when the picture is requested. `media` draws one pixel per point.
    static std::shared_ptr<const PictureContents> open(const Url& url,
                                                       std::shared_ptr<MediaLoader> media);

    /// Returns the media types, best first.
    QStringList types() const;

    /// Returns the picture as one of types(); empty if the file turns out to be damaged. Unless the
    /// type is the file's own, blocks while the picture is decoded and encoded.
    QByteArray bytesAs(const QString& type) const;

private:
    PictureContents() = default;

    FileDescriptor file_;
    QString ownType_;                     ///< Empty if the type is not known.
    std::shared_ptr<MediaLoader> media_;  ///< Must outlive the image.
    std::unique_ptr<ImageFile> image_;
};

}  // namespace vantle
