#include "platform/x11/Drag.h"

#include <utility>

namespace vantle::x11 {

Drag::Drag(const DragContents& contents)
    : selection_(contents.make()), catcher_(std::in_place), use_(contents.files) {}

void Drag::ended(QWindow*) {
    catcher_.reset();
}

void Drag::waitForAnswer(const DropState& state, std::function<void(bool wasTaken)> done) {
    answer_.wait([this, state, done = std::move(done)](bool wasTaken) {
        use_.waitForDecision(wasTaken && *state.wasRead, state, done);
    });
}

}  // namespace vantle::x11
