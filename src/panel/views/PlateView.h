#pragma once

#include <QtQml/qqmlregistration.h>

#include <QColor>

#include "panel/views/NinePartView.h"

namespace vantle {

/// A plate with continuous corners, filled and edged; the border stands inside the edge.
class PlateView : public vantle::NinePartView {  // in full: the linter reads it so
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(double cornerRadius MEMBER cornerRadius_ NOTIFY changed)
    Q_PROPERTY(QColor fill MEMBER fill_ NOTIFY changed)
    Q_PROPERTY(QColor borderColor MEMBER borderColor_ NOTIFY changed)
    Q_PROPERTY(double borderWidth MEMBER borderWidth_ NOTIFY changed)

public:
    using NinePartView::NinePartView;

    double cornerRadius() const { return cornerRadius_; }

protected:
    double cornerLength() const override;
    QImage cornersOnly(int corner, double pixelsPerPoint) const override;

private:
    double cornerRadius_ = 0;
    QColor fill_ = Qt::transparent;
    QColor borderColor_ = Qt::transparent;
    double borderWidth_ = 0;
};

}  // namespace vantle
