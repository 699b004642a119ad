#pragma once

#include <QtQml/qqmlregistration.h>

#include <QObject>
#include <QString>
#include <vector>

#include "panel/CardActions.h"
#include "panel/views/dragging/DraggingSession.h"

namespace vantle {

/// A view from which captures can be dragged. DragThumbnailView tells it about the drags.
class DragSource : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the views")

public:
    using QObject::QObject;

    virtual DraggingSessions& draggingSessions() = 0;
    /// Returns the items of a drag from that capture: at least its own file, while it is shown.
    virtual std::vector<DragItem> dragItems(const QString& captureId) const = 0;
    virtual void dragBegan() = 0;
    virtual void dragEnded(bool completed, const std::vector<Url>& urls) = 0;
};

}  // namespace vantle
