#pragma once

#include "panel/views/dragging/DraggingSession.h"

namespace vantle {

/// Drags as the desktop's programs know them (XDND, or the compositor's). Escape ends one.
class QtDraggingSessions final : public DraggingSessions {
public:
    void begin(QWindow& window, std::vector<DraggingItem> items, const QPointF& grip, Moved moved,
               Ended ended) override;
};

}  // namespace vantle
