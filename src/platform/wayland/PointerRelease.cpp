#include "platform/wayland/PointerRelease.h"

#include <qpa/qwindowsysteminterface.h>

#include <QCursor>

namespace vantle::wayland {

void releaseLeftButton(QWindow& window) {
    const QPoint place = QCursor::pos();
    QWindowSystemInterface::handleMouseEvent(&window, window.mapFromGlobal(place), place,
                                             Qt::NoButton, Qt::LeftButton,
                                             QEvent::MouseButtonRelease);
}

}  // namespace vantle::wayland
