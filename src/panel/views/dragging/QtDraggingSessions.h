#pragma once

#include <memory>
#include <utility>

#include "panel/views/dragging/DraggingSession.h"
#include "platform/qt/FileTransfer.h"

namespace vantle {

/// Drags that the desktop's programs understand. Escape cancels a drag.
class QtDraggingSessions final : public DraggingSessions {
public:
    /// `transfer` serves programs in a sandbox; it may be null.
    explicit QtDraggingSessions(std::shared_ptr<const FileTransfer> transfer)
        : transfer_(std::move(transfer)) {}

    void begin(QWindow& window, std::vector<DraggingItem> items, const QPointF& grip, Moved moved,
               Ended ended) override;

private:
    const std::shared_ptr<const FileTransfer> transfer_;
};

}  // namespace vantle
