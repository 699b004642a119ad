#include "panel/views/DragThumbnailView.h"

#include <QLineF>
#include <QMouseEvent>

#include "support/Debug.h"

namespace vantle {
namespace {

constexpr double dragThreshold = 3;  // points; a drag is more than that

}  // namespace

DragThumbnailView::DragThumbnailView(QQuickItem* parent) : QQuickItem(parent) {
    setAcceptedMouseButtons(Qt::LeftButton);
}

void DragThumbnailView::mousePressEvent(QMouseEvent* event) {
    Debug::log([this] { return "thumb mouseDown " + fileName_.toStdString(); });
    mouseDownPoint_ = event->scenePosition();
    dragging_ = false;
}

void DragThumbnailView::mouseMoveEvent(QMouseEvent* event) {
    if (!mouseDownPoint_ || dragging_) return;
    dragging_ = QLineF(*mouseDownPoint_, event->scenePosition()).length() > dragThreshold;
}

void DragThumbnailView::mouseReleaseEvent(QMouseEvent* event) {
    Debug::log(
        [this] { return std::string("thumb mouseUp dragging=") + (dragging_ ? "true" : "false"); });
    const bool isClick = mouseDownPoint_ && !dragging_ && contains(event->position());
    mouseDownPoint_.reset();
    if (!isClick) return;
    const bool toggles = event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier);
    if (toggles)
        emit selectionToggled();
    else
        emit clicked();
}

void DragThumbnailView::mouseUngrabEvent() {
    mouseDownPoint_.reset();
}

}  // namespace vantle
