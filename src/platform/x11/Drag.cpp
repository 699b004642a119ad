#include "platform/x11/Drag.h"

#include <utility>

namespace vantle::x11 {

Drag::Drag(const DragContents& contents)
    : selection_(contents.make()), ground_(std::in_place), use_(contents.files) {}

void Drag::ended(QWindow*) {
    ground_.reset();
}

void Drag::waitForAnswer(const DropMarks& marks, std::function<void(bool wasTaken)> told) {
    answer_.wait([this, marks, told = std::move(told)](bool wasTaken) {
        use_.waitForDecision(wasTaken && *marks.wasRead, marks, told);
    });
}

}  // namespace vantle::x11
