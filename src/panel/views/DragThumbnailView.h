#pragma once

#include <QtQml/qqmlregistration.h>

#include <QPointF>
#include <QQuickItem>
#include <optional>

namespace vantle {

/// What takes the mouse on a capture's thumbnail: it tells a click from one with a modifier key and
/// from the beginning of a drag.
class DragThumbnailView : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QString captureId MEMBER captureId_ NOTIFY changed)
    Q_PROPERTY(QString fileName MEMBER fileName_ NOTIFY changed)

public:
    explicit DragThumbnailView(QQuickItem* parent = nullptr);

    const QString& captureId() const { return captureId_; }

signals:
    void changed();
    void clicked();
    /// A click with the key that adds to a selection.
    void selectionToggled();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseUngrabEvent() override;

private:
    QString captureId_;
    QString fileName_;
    std::optional<QPointF> mouseDownPoint_;  ///< In the window; absent when nothing is pressed.
    bool dragging_ = false;
};

}  // namespace vantle
