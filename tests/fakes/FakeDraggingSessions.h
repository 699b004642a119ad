#pragma once

#include <utility>
#include <vector>

#include "panel/views/dragging/DraggingSession.h"

namespace vantle::fakes {

/// Records drags; the test ends them.
class FakeDraggingSessions final : public DraggingSessions {
public:
    void begin(QWindow&, std::vector<DraggingItem> items, const QPointF& grip, Moved howFar,
               Ended ended) override {
        dragged = std::move(items);
        grippedAt = grip;
        moved = std::move(howFar);
        ended_ = std::move(ended);
        ++timesBegun;
    }

    void end(DragOperation operation) { std::exchange(ended_, nullptr)(operation); }

    std::vector<DraggingItem> dragged;
    QPointF grippedAt;
    Moved moved;
    int timesBegun = 0;

private:
    Ended ended_;
};

}  // namespace vantle::fakes
