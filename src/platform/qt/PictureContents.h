#pragma once

#include <QByteArray>
#include <QStringList>
#include <memory>

#include "platform/MediaLoader.h"
#include "platform/Pasteboard.h"
#include "support/FileDescriptor.h"

namespace vantle {

/// What an image file holds, as other programs take it: its own bytes, and on request the same
/// picture in the types that most of them know. It keeps the file open, and so lasts when that is
/// moved or deleted. Main thread only.
class PictureContents final : public PasteboardImage {
public:
    /// Null when the file cannot be had or breaks off. Does not look whether an image is in it:
    /// that shows when it is asked for. `media` draws a pixel for a point.
    static std::shared_ptr<const PictureContents> open(const Url& url,
                                                       std::shared_ptr<MediaLoader> media);

    /// Media types, best first.
    QStringList types() const;

    /// The picture as one of types(); empty when the file turns out to be damaged. Blocks while it
    /// is decoded and encoded, if it is not the file's own type.
    QByteArray as(const QString& type) const;

private:
    PictureContents() = default;

    FileDescriptor file_;
    QString ownType_;                     ///< Empty when nobody would know what to do with it.
    std::shared_ptr<MediaLoader> media_;  ///< Has to last as long as the image.
    std::unique_ptr<ImageFile> image_;
};

}  // namespace vantle
