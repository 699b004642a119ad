#pragma once

#include <QImage>
#include <QPointF>
#include <QRectF>
#include <functional>
#include <vector>

#include "support/Url.h"

class QWindow;

namespace vantle {

/// The result of a drag.
enum class DragOperation { none = 0, copy = 1 };

/// A file that is dragged, and the picture that represents it.
struct DraggingItem {
    Url url;
    QImage image;
    QRectF frame;  ///< The frame at the start, in the window's points.
};

/// Drags files into other programs, which copy them, and never into this one. Main thread only.
class DraggingSessions {
public:
    using Ended = std::function<void(DragOperation operation)>;
    /// Returns how far the dragged tile has moved in its window since the drag began.
    using Moved = std::function<QPointF()>;

    virtual ~DraggingSessions() = default;

    /// Begins a drag while the pointer's button is held on `window` at `grip` (in its points). The
    /// items move as a pile, the first on top. If no program takes them, they fly back to where
    /// they started, or to where `moved` says that this is by then. Calls `ended` once, never
    /// inside this call, and with copy only if the other program has said that it took the items.
    /// There must be at least one item.
    virtual void begin(QWindow& window, std::vector<DraggingItem> items, const QPointF& grip,
                       Moved moved, Ended ended) = 0;
};

}  // namespace vantle
