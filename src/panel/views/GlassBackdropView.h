#pragma once

#include <QtQml/qqmlregistration.h>

#include "panel/views/PlateView.h"

namespace vantle {

/// The translucent plate on which the card's tiles stand. Clicks are caught exactly where it is, by
/// the content above it: it takes none itself.
class GlassBackdropView : public vantle::PlateView {  // in full: the linter reads it so
    Q_OBJECT
    QML_ELEMENT

    /// Whether the presses that it catches count; those on a card that leaves do not.
    Q_PROPERTY(bool isSolid MEMBER isSolid_ NOTIFY isSolidChanged)
    /// Whether the compositor blurs what is behind it; set by the window that it stands in.
    Q_PROPERTY(bool isBlurred READ isBlurred NOTIFY isBlurredChanged)

public:
    static constexpr double defaultCornerRadius = 22;

    explicit GlassBackdropView(QQuickItem* parent = nullptr);

    bool isSolid() const { return isSolid_; }
    bool isBlurred() const { return isBlurred_; }
    void setBlurred(bool isBlurred);

    bool contains(const QPointF&) const override { return false; }

    /// Where it stands in its window, "{{x, y}, {w, h}}" in whole points from the top left;
    /// "(no window)" while it is in none.
    QString debugFrameDescription() const;

signals:
    void isSolidChanged();
    void isBlurredChanged();

private:
    bool isSolid_ = true;
    bool isBlurred_ = false;
};

}  // namespace vantle
