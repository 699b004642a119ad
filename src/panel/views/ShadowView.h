#pragma once

#include <QtQml/qqmlregistration.h>

#include "panel/views/NinePartView.h"

namespace vantle {

/// The black shadow around a rounded plate, whose edges are `margin` inside this item. There is no
/// shadow beneath the plate, because it would darken a translucent plate.
class ShadowView : public vantle::NinePartView {  // the linter needs the full name
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(double cornerRadius MEMBER cornerRadius_ NOTIFY changed)
    Q_PROPERTY(double blur MEMBER blur_ NOTIFY changed)
    Q_PROPERTY(double strength MEMBER strength_ NOTIFY changed)
    /// How far the shadow falls downwards.
    Q_PROPERTY(double verticalOffset MEMBER verticalOffset_ NOTIFY changed)
    Q_PROPERTY(double margin READ margin NOTIFY changed)

public:
    using NinePartView::NinePartView;

    double margin() const { return blur_ + verticalOffset_; }

protected:
    double cornerLength() const override;
    QImage sourcePicture(int corner, double pixelsPerPoint) const override;
    bool isHollow() const override { return true; }

private:
    double cornerRadius_ = 0;
    double blur_ = 0;
    double strength_ = 0;
    double verticalOffset_ = 0;
};

}  // namespace vantle
