#include "panel/views/DragThumbnailView.h"

#include <QLineF>
#include <QMouseEvent>
#include <QPointer>
#include <QQuickWindow>
#include <algorithm>

#include "platform/qt/FileIcon.h"
#include "platform/qt/Pixels.h"
#include "support/Debug.h"

namespace vantle {
namespace {

constexpr double dragThreshold = 3;  // points; a drag moves farther
constexpr double pileOffset = 6;     // points from each item of a pile to the next
constexpr std::size_t maximumOffsets = 4;
constexpr int iconSize = 256;  // pixels

/// Returns the picture of a file for which the desktop has no icon.
QImage blank() {
    QImage image(iconSize, iconSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(128, 128, 132));
    return image;
}

}  // namespace

DragThumbnailView::DragThumbnailView(QQuickItem* parent) : QQuickItem(parent) {
    setAcceptedMouseButtons(Qt::LeftButton);
}

QRectF DragThumbnailView::fittedRect(const QSizeF& size, const QRectF& bounds) {
    if (size.width() <= 0 || size.height() <= 0) return bounds;
    QRectF fitted(QPointF(), size.scaled(bounds.size(), Qt::KeepAspectRatio));
    fitted.moveCenter(bounds.center());
    return fitted;
}

void DragThumbnailView::mousePressEvent(QMouseEvent* event) {
    Debug::log([this] { return "thumb mouseDown " + fileName_.toStdString(); });
    mouseDownPoint_ = event->scenePosition();
    dragging_ = false;
    isSecondClick_ = false;
}

void DragThumbnailView::mouseDoubleClickEvent(QMouseEvent* event) {
    isSecondClick_ = true;
    emit doubleClick(event->position());
}

void DragThumbnailView::mouseMoveEvent(QMouseEvent* event) {
    if (!mouseDownPoint_ || dragging_) return;
    if (QLineF(*mouseDownPoint_, event->scenePosition()).length() > dragThreshold) startDrag();
}

void DragThumbnailView::startDrag() {
    dragging_ = true;
    Debug::log([] { return "thumb drag begins"; });
    source_->dragBegan();
    const std::vector<DragItem> items = source_->dragItems(captureId_);
    if (items.empty()) {
        source_->dragEnded(false, {});
        return;
    }
    std::vector<Url> urls;
    urls.reserve(items.size());
    for (const auto& item : items) urls.push_back(item.url);
    source_->draggingSessions().begin(
        *window(), draggingItems(items), *mouseDownPoint_,
        [view = QPointer(this), start = mapToScene({})] {
            return view ? view->mapToScene({}) - start : QPointF();
        },
        [view = QPointer(this), source = QPointer(source_), urls](DragOperation operation) {
            if (view) view->dragEnded(operation);
            if (source) source->dragEnded(operation == DragOperation::copy, urls);
        });
}

void DragThumbnailView::dragEnded(DragOperation operation) {
    Debug::log([operation] {
        return "thumb drag ended op=" + std::to_string(static_cast<int>(operation));
    });
    dragging_ = false;
    mouseDownPoint_.reset();
}

std::vector<DraggingItem> DragThumbnailView::draggingItems(
    const std::vector<DragItem>& items) const {
    const QRectF bounds = mapRectToScene(QRectF(QPointF(), size()));
    const QRectF base = fittedRect(preview(items.front()).size(), bounds);
    std::vector<DraggingItem> dragged;
    for (std::size_t i = 0; i < items.size(); ++i) {
        const double offset = pileOffset * static_cast<double>(std::min(i, maximumOffsets));
        dragged.push_back({items[i].url, preview(items[i]), base.translated(offset, offset)});
    }
    return dragged;
}

QImage DragThumbnailView::preview(const DragItem& item) const {
    if (item.image) return pixels(*item.image);
    const QImage icon = fileIcon(item.url, {iconSize, iconSize});
    return icon.isNull() ? blank() : icon;
}

void DragThumbnailView::mouseReleaseEvent(QMouseEvent* event) {
    Debug::log(
        [this] { return std::string("thumb mouseUp dragging=") + (dragging_ ? "true" : "false"); });
    const bool isClick = mouseDownPoint_ && !dragging_ && contains(event->position());
    mouseDownPoint_.reset();
    if (!isClick) return;
    const bool toggles = event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier);
    if (toggles)
        emit toggleSelect();
    else if (!isSecondClick_)
        emit click();
}

void DragThumbnailView::mouseUngrabEvent() {
    mouseDownPoint_.reset();
}

}  // namespace vantle
