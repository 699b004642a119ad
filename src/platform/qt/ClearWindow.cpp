#include "platform/qt/ClearWindow.h"

#include <QPaintEvent>
#include <QPainter>

namespace vantle {

ClearWindow::ClearWindow() {
    QSurfaceFormat format = requestedFormat();
    format.setAlphaBufferSize(8);
    setFormat(format);
}

void ClearWindow::keepOutOfTheWay() {
    setFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint |
             Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus);
}

bool ClearWindow::event(QEvent* event) {
    // Some of Qt's plugins still paint a window that has been closed in the meantime, and crash.
    const bool isTooLate = event->type() == QEvent::Paint && !handle();
    return isTooLate || QRasterWindow::event(event);
}

void ClearWindow::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(event->rect(), Qt::transparent);
}

}  // namespace vantle
