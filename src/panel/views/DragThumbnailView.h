#pragma once

#include <QtQml/qqmlregistration.h>

#include <QPointF>
#include <QQuickItem>
#include <optional>
#include <vector>

#include "panel/views/DragSource.h"

namespace vantle {

/// Receives the mouse on a capture's thumbnail. It distinguishes a click, a click with a modifier
/// key and a drag, and starts the drag. The source learns how a drag ended even if the tile has
/// gone.
class DragThumbnailView : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(vantle::DragSource* source MEMBER source_ NOTIFY changed)
    Q_PROPERTY(QString captureId MEMBER captureId_ NOTIFY changed)
    Q_PROPERTY(QString fileName MEMBER fileName_ NOTIFY changed)

public:
    explicit DragThumbnailView(QQuickItem* parent = nullptr);

    const QString& captureId() const { return captureId_; }

    /// Returns the largest rectangle with the proportions of `size`, centred in `bounds`. Returns
    /// `bounds` if the size is empty.
    static QRectF fittedRect(const QSizeF& size, const QRectF& bounds);

signals:
    void changed();
    /// Emitted for a click, and once for a double-click.
    void click();
    /// Emitted for the second click of a double-click, with its place.
    void doubleClick(QPointF place);
    /// Emitted for a click with a key that adds to a selection (Control or Shift).
    void toggleSelect();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseUngrabEvent() override;

private:
    void startDrag();
    std::vector<DraggingItem> draggingItems(const std::vector<DragItem>& items) const;
    QImage preview(const DragItem& item) const;
    void dragEnded(DragOperation operation);

    DragSource* source_ = nullptr;
    QString captureId_;
    QString fileName_;
    std::optional<QPointF> mouseDownPoint_;  ///< The press in the window, if there is one.
    bool dragging_ = false;
    bool isSecondClick_ = false;  ///< The current press is the second of a double-click.
};

}  // namespace vantle
