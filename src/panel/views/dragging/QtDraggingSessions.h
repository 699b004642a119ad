#pragma once

#include <memory>

#include "panel/views/dragging/DraggingSession.h"
#include "platform/CaptureExtensions.h"

namespace vantle {

class MediaLoader;

/// Drags as the desktop's programs know them (XDND, or the compositor's). Escape ends one.
class QtDraggingSessions final : public DraggingSessions {
public:
    /// `media` draws a pixel for a point. A file with one of `more` extensions can be a picture,
    /// too.
    explicit QtDraggingSessions(std::shared_ptr<MediaLoader> media, const CaptureExtensions& more);

    void begin(QWindow& window, std::vector<DraggingItem> items, const QPointF& grip,
               Ended ended) override;

private:
    const std::shared_ptr<MediaLoader> media_;
    const CaptureExtensions more_;
};

}  // namespace vantle
