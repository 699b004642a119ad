#pragma once

#include <QtQml/qqmlregistration.h>

#include "panel/views/NinePartView.h"

namespace vantle {

/// The black shadow of a rounded plate of this item's size minus `blur` on each side.
class ShadowView : public vantle::NinePartView {  // in full: the linter reads it so
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(double cornerRadius MEMBER cornerRadius_ NOTIFY changed)
    Q_PROPERTY(double blur MEMBER blur_ NOTIFY changed)
    Q_PROPERTY(double strength MEMBER strength_ NOTIFY changed)

public:
    using NinePartView::NinePartView;

protected:
    double cornerLength() const override;
    QImage cornersOnly(int corner, double pixelsPerPoint) const override;

private:
    double cornerRadius_ = 0;
    double blur_ = 0;
    double strength_ = 0;
};

}  // namespace vantle
