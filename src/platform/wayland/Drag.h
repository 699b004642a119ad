#pragma once

#include <optional>

#include "platform/freedesktop/FileUseWatcher.h"
#include "platform/qt/DragSupport.h"
#include "platform/wayland/DragEnd.h"

class QDrag;

namespace vantle::wayland {

/// A drag that a compositor controls. The compositor does not tell whether the target has taken
/// what it promised to take. Main thread only.
class Drag final : public DragSupport {
public:
    Drag(QDrag& drag, const DragContents& contents);

    void ended(QWindow* source) override;
    void waitForAnswer(const DropState& state, std::function<void(bool wasTaken)> done) override;

private:
    std::optional<DragEnd> end_;  ///< Present while the button is held.
    FileUseWatcher use_;
};

}  // namespace vantle::wayland
