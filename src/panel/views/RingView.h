#pragma once

#include <QtQml/qqmlregistration.h>

#include <QColor>

#include "panel/views/NinePartView.h"

namespace vantle {

/// A ring that fills clockwise from its top, on a fainter track.
class RingView : public vantle::NinePartView {  // the linter needs the full name
    Q_OBJECT
    QML_ELEMENT

    /// The filled part, 0 to 1.
    Q_PROPERTY(double fraction MEMBER fraction_ NOTIFY changed)
    Q_PROPERTY(double thickness MEMBER thickness_ NOTIFY changed)
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed)
    Q_PROPERTY(QColor trackColor MEMBER trackColor_ NOTIFY changed)

public:
    using NinePartView::NinePartView;

protected:
    double cornerLength() const override;
    QImage sourcePicture(int corner, double pixelsPerPoint) const override;

private:
    double fraction_ = 0;
    double thickness_ = 2;
    QColor color_ = Qt::black;
    QColor trackColor_ = Qt::transparent;
};

}  // namespace vantle
