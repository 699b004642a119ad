#pragma once

#include <QtQml/qqmlregistration.h>

#include <QImage>
#include <QQuickItem>

namespace vantle {

/// A rounded shape of any size, drawn from four corners and the stretched parts between them. It
/// needs one small picture, and growing costs nothing.
class NinePartView : public QQuickItem {
    Q_OBJECT
    QML_ANONYMOUS

public:
    explicit NinePartView(QQuickItem* parent = nullptr);

signals:
    /// Emitted when a property on which the picture depends has changed.
    void changed();

protected:
    /// Returns the length of a corner's sides in points; beyond it the shape has straight edges.
    virtual double cornerLength() const = 0;

    /// Returns the smallest picture of the shape that has whole corners: the corners' sides are
    /// `corner` pixels long, with one row and one column between them. If the item is too small for
    /// corners of cornerLength(), `corner` is the length that fits.
    virtual QImage sourcePicture(int corner, double pixelsPerPoint) const = 0;

    /// Returns true if there is nothing to draw between the corners and edges.
    virtual bool isHollow() const { return false; }

    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;

private:
    double drawnPixelsPerPoint_ = 0;  ///< 0 if the picture must be redrawn.
    int drawnCorner_ = 0;             ///< The side of a drawn corner, in pixels.
};

}  // namespace vantle
