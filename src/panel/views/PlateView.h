#pragma once

#include <QtQml/qqmlregistration.h>

#include <QColor>

#include "panel/views/NinePartView.h"

namespace vantle {

/// A filled plate with continuous corners and a border inside its edge.
class PlateView : public vantle::NinePartView {  // the linter needs the full name
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
    QImage sourcePicture(int corner, double pixelsPerPoint) const override;

private:
    double cornerRadius_ = 0;
    QColor fill_ = Qt::transparent;
    QColor borderColor_ = Qt::transparent;
    double borderWidth_ = 0;
};

}  // namespace vantle
