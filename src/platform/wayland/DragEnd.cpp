#include "platform/wayland/DragEnd.h"

#include <QDrag>
#include <QEvent>
#include <QGuiApplication>

namespace vantle::wayland {

DragEnd::DragEnd() {
    qGuiApp->installEventFilter(this);
}

bool DragEnd::eventFilter(QObject* object, QEvent* event) {
    const bool entersWindow = event->type() == QEvent::Enter && object->isWindowType();
    if (entersWindow && promise_ == Qt::IgnoreAction) QDrag::cancel();
    return false;
}

}  // namespace vantle::wayland
