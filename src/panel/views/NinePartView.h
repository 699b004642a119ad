#pragma once

#include <QtQml/qqmlregistration.h>

#include <QImage>
#include <QQuickItem>

namespace vantle {

/// A rounded shape of any size, put together of four corners and what is stretched between them:
/// it costs one small picture, and growing costs nothing.
class NinePartView : public QQuickItem {
    Q_OBJECT
    QML_ANONYMOUS

public:
    explicit NinePartView(QQuickItem* parent = nullptr);

signals:
    /// A property that the picture depends on has changed.
    void changed();

protected:
    /// The length of a corner's sides in points: beyond it the shape has straight edges.
    virtual double cornerLength() const = 0;

    /// The smallest picture of the shape that has whole corners, whose sides are `corner` pixels
    /// long, and one row and one column between them. Where the item has no room for corners of
    /// that length, `corner` is what there is.
    virtual QImage cornersOnly(int corner, double pixelsPerPoint) const = 0;

    /// Whether there is anything to draw between the corners and edges.
    virtual bool isHollow() const { return false; }

    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;

private:
    double drawnPixelsPerPoint_ = 0;  ///< 0 when what is drawn does not show the properties.
    int drawnCorner_ = 0;             ///< In pixels.
};

}  // namespace vantle
