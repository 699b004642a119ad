#pragma once

#include <optional>

#include "platform/freedesktop/FileUseWatcher.h"
#include "platform/qt/DragSupport.h"
#include "platform/x11/DragSelection.h"
#include "platform/x11/DropAnswer.h"
#include "platform/x11/DropCatcher.h"

namespace vantle::x11 {

/// A drag by the XDND protocol. Main thread only.
class Drag final : public DragSupport {
public:
    explicit Drag(const DragContents& contents);

    void ended(QWindow* source) override;
    void waitForAnswer(const DropState& state, std::function<void(bool wasTaken)> done) override;

private:
    DropAnswer answer_;
    DragSelection selection_;
    std::optional<DropCatcher> catcher_;  ///< Present while the button is held.
    FileUseWatcher use_;
};

}  // namespace vantle::x11
