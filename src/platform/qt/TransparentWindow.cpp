#include "platform/qt/TransparentWindow.h"

#include <QPaintEvent>
#include <QPainter>

namespace vantle {

TransparentWindow::TransparentWindow() {
    QSurfaceFormat format = requestedFormat();
    format.setAlphaBufferSize(8);
    setFormat(format);
}

void TransparentWindow::makePassive() {
    setFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint |
             Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus);
}

bool TransparentWindow::event(QEvent* event) {
    // Some of Qt's plugins still paint a window that has been closed in the meantime, and crash.
    const bool isTooLate = event->type() == QEvent::Paint && !handle();
    return isTooLate || QRasterWindow::event(event);
}

void TransparentWindow::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(event->rect(), Qt::transparent);
}

}  // namespace vantle
