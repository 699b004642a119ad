#pragma once

#include <QMimeData>
#include <functional>
#include <memory>
#include <vector>

#include "support/Url.h"

class QWindow;

namespace vantle {

/// The contents of a drag.
struct DragContents {
    std::vector<Url> files;
    /// Makes a new object with the contents, which are the same each time.
    std::function<std::unique_ptr<QMimeData>()> make;
};

/// The use that has been made of a drag's contents so far.
struct DropState {
    /// True if a program has read some of the contents.
    std::shared_ptr<const bool> wasRead;
    /// True if the target asks the user what to do with the files only after it has taken them.
    std::shared_ptr<const bool> decidesLater;
};

/// The support that a display server needs for one drag in addition to the toolkit's. It is made
/// before the drag begins and lives until the answer. Main thread only.
class DragSupport {
public:
    virtual ~DragSupport() = default;

    /// Call it when the button was released or the drag was cancelled. `source` is the window in
    /// which the drag began; null if that is gone.
    virtual void ended(QWindow* source) { (void)source; }

    /// Calls `done` once, and says whether the program that received the drop has taken the
    /// contents. A program that has read nothing has taken nothing.
    // NOLINTNEXTLINE(performance-unnecessary-value-param): display servers that wait keep it.
    virtual void waitForAnswer(const DropState& state, std::function<void(bool wasTaken)> done) {
        done(*state.wasRead);
    }
};

}  // namespace vantle
