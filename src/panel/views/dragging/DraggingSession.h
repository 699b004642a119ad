#pragma once

#include <QImage>
#include <QPointF>
#include <QRectF>
#include <functional>
#include <vector>

#include "support/Url.h"

class QWindow;

namespace vantle {

/// What became of what was dragged.
enum class DragOperation { none = 0, copy = 1 };

/// A file that is dragged, and what stands for it.
struct DraggingItem {
    Url url;
    QImage image;
    QRectF frame;  ///< Where it starts, in the window's points.
};

/// Drags files into other programs, which copy them: never into this one. Main thread only.
class DraggingSessions {
public:
    using Ended = std::function<void(DragOperation operation)>;
    /// How far what was dragged has moved in its window since the drag began.
    using Moved = std::function<QPointF()>;

    virtual ~DraggingSessions() = default;

    /// Begins while the pointer's button is held on `window` at `grip` (in its points). The items
    /// move as a pile, the first on top; where nobody takes them they go back to where they
    /// started, or to where that is by then. `ended` is called once, never inside this: with copy
    /// only when the other program has said that it took them. There is at least one item.
    virtual void begin(QWindow& window, std::vector<DraggingItem> items, const QPointF& grip,
                       Moved moved, Ended ended) = 0;
};

}  // namespace vantle
