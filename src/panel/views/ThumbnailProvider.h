#pragma once

#include <QQuickImageProvider>
#include <functional>

#include "capture/Capture.h"

namespace vantle {

/// Provides thumbnails as they appear in their tiles: "image://thumbnail/ID/WIDTHxHEIGHT", with the
/// tile's size in points. A thumbnail is fitted into the tile, with rounded corners and a dark
/// background where it leaves space. It is scaled once, to the pixels that the scene requests.
class ThumbnailProvider final : public QQuickImageProvider {
public:
    using Lookup = std::function<CapturePointer(const QString& captureId)>;

    /// `lookup` is called on the main thread.
    explicit ThumbnailProvider(Lookup lookup)
        : QQuickImageProvider(Image), lookup_(std::move(lookup)) {}

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;

private:
    Lookup lookup_;
};

}  // namespace vantle
