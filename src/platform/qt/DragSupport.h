#pragma once

#include <QMimeData>
#include <functional>
#include <memory>
#include <vector>

#include "support/Url.h"

class QWindow;

namespace vantle {

/// What is dragged.
struct DragContents {
    std::vector<Url> files;
    /// Makes the contents anew; each says the same.
    std::function<std::unique_ptr<QMimeData>()> make;
};

/// What has been done so far with what is dragged.
struct DropMarks {
    /// Whether somebody has read some of it.
    std::shared_ptr<const bool> wasRead;
    /// Whether the target asks the user what becomes of the files only after it has taken them.
    std::shared_ptr<const bool> decidesLater;
};

/// What a display server needs for one drag besides what the toolkit does. It is made before the
/// drag begins and lives until the answer. Main thread only.
class DragSupport {
public:
    virtual ~DragSupport() = default;

    /// To be called when the button was released or the drag was given up. `source` is the window
    /// in which it began; null when that has gone.
    virtual void ended(QWindow* source) { (void)source; }

    /// Calls `told` once, with whether the program on which it was dropped has taken it. A program
    /// that has read nothing has taken nothing.
    virtual void waitForAnswer(const DropMarks& marks, std::function<void(bool wasTaken)> told) {
        told(*marks.wasRead);
    }
};

}  // namespace vantle
