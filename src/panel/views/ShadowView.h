#pragma once

#include <QtQml/qqmlregistration.h>

#include <QImage>
#include <QQuickItem>

namespace vantle {

/// The black shadow of a rounded plate of this item's size minus `blur` on each side. It is put
/// together of four corners and what is stretched between them, so that a shadow of any size costs
/// one small picture, and growing costs nothing.
class ShadowView : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(double cornerRadius MEMBER cornerRadius_ NOTIFY changed)
    Q_PROPERTY(double blur MEMBER blur_ NOTIFY changed)
    Q_PROPERTY(double strength MEMBER strength_ NOTIFY changed)

public:
    explicit ShadowView(QQuickItem* parent = nullptr);

signals:
    void changed();

protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;

private:
    /// The smallest shadow that has whole corners, whose sides are `corner` pixels long, and one
    /// row and one column between them.
    QImage cornersOnly(int corner, double pixelsPerPoint) const;

    double cornerRadius_ = 0;
    double blur_ = 0;
    double strength_ = 0;
    double drawnPixelsPerPoint_ = 0;  ///< 0 when what is drawn does not show the properties.
};

}  // namespace vantle
