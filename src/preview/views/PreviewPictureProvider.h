#pragma once

#include <QQuickImageProvider>

#include "preview/views/PreviewModel.h"

namespace vantle {

/// Provides the pictures of the preview: "image://preview/thumbnail/ID" and
/// "image://preview/picture/NUMBER".
class PreviewPictureProvider final : public QQuickImageProvider {
public:
    /// The model outlives the provider. It is used on the main thread.
    explicit PreviewPictureProvider(const PreviewModel& model)
        : QQuickImageProvider(Image), model_(model) {}

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;

private:
    const PreviewModel& model_;
};

}  // namespace vantle
