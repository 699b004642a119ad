#include "platform/wayland/Drag.h"

#include <QDrag>
#include <utility>

#include "platform/wayland/PointerRelease.h"
#include "support/Debug.h"

namespace vantle::wayland {
namespace {

void logPromise(Qt::DropAction action) {
    Debug::log([action] {
        return std::string("drop target promised=") +
               (action == Qt::IgnoreAction ? "false" : "true");
    });
}

}  // namespace

Drag::Drag(QDrag& drag, const DragContents& contents) : end_(std::in_place), use_(contents.files) {
    QObject::connect(&drag, &QDrag::actionChanged, &*end_, [this](Qt::DropAction action) {
        logPromise(action);
        end_->setPromise(action);
    });
}

void Drag::ended(QWindow* source) {
    end_.reset();
    if (source) releaseLeftButton(*source);
}

void Drag::waitForAnswer(const DropState& state, std::function<void(bool wasTaken)> done) {
    use_.waitForDecision(*state.wasRead, state, std::move(done));
}

}  // namespace vantle::wayland
