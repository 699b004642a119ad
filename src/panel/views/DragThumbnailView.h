#pragma once

#include <QtQml/qqmlregistration.h>

#include <QPointF>
#include <QQuickItem>
#include <optional>
#include <vector>

#include "panel/views/PanelModel.h"
#include "panel/views/dragging/DraggingSession.h"

namespace vantle {

/// What takes the mouse on a capture's thumbnail: it tells a click from one with a modifier key and
/// from a drag, and starts that. A drag is still told to the panel when the tile goes meanwhile.
class DragThumbnailView : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(vantle::PanelModel* panel MEMBER panel_ NOTIFY changed)
    Q_PROPERTY(QString captureId MEMBER captureId_ NOTIFY changed)
    Q_PROPERTY(QString fileName MEMBER fileName_ NOTIFY changed)

public:
    explicit DragThumbnailView(QQuickItem* parent = nullptr);

    const QString& captureId() const { return captureId_; }

    /// The largest rectangle of that size's proportions in the middle of `bounds`; `bounds` where
    /// the size has none.
    static QRectF fittedRect(const QSizeF& size, const QRectF& bounds);

signals:
    void changed();
    /// A double-click is one, too.
    void click();
    /// A click with the key that adds to a selection.
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

    PanelModel* panel_ = nullptr;
    QString captureId_;
    QString fileName_;
    std::optional<QPointF> mouseDownPoint_;  ///< In the window; absent when nothing is pressed.
    bool dragging_ = false;
    bool isSecondClick_ = false;  ///< The press that is going on is the second of a double-click.
};

}  // namespace vantle
