#pragma once

#include <QQuickImageProvider>
#include <functional>

#include "capture/Capture.h"

namespace vantle {

/// Thumbnails as they stand in their tiles: "image://thumbnail/ID/WIDTHxHEIGHT", with the tile's
/// size in points. Fitted into the tile, on a dark ground where they leave some free, with rounded
/// corners; scaled once, in the pixels that the scene asks for.
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
