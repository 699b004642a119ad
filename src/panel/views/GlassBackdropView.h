#pragma once

#include <QtQml/qqmlregistration.h>

#include "panel/views/PlateView.h"

namespace vantle {

/// The translucent plate below the card's tiles. It takes no clicks itself; the content above it
/// takes those within the plate's frame.
class GlassBackdropView : public vantle::PlateView {  // the linter needs the full name
    Q_OBJECT
    QML_ELEMENT

    /// True if presses within the plate's frame count; false while the card is leaving.
    Q_PROPERTY(bool isSolid MEMBER isSolid_ NOTIFY isSolidChanged)
    /// True while the plate is beside its place only for a moment; the window's input region then
    /// stays where it is.
    Q_PROPERTY(bool isHeld MEMBER isHeld_ NOTIFY isHeldChanged)
    /// False while the plate fades: a blur would stay where the plate can no longer be seen.
    Q_PROPERTY(bool wantsBlur MEMBER wantsBlur_ NOTIFY wantsBlurChanged)
    /// True if the compositor blurs what is behind the plate. The plate's window sets it.
    Q_PROPERTY(bool isBlurred READ isBlurred NOTIFY isBlurredChanged)

public:
    static constexpr double defaultCornerRadius = 22;

    explicit GlassBackdropView(QQuickItem* parent = nullptr);

    bool isSolid() const { return isSolid_; }
    bool isHeld() const { return isHeld_; }
    bool wantsBlur() const { return wantsBlur_; }
    bool isBlurred() const { return isBlurred_; }
    void setBlurred(bool isBlurred);

    bool contains(const QPointF&) const override { return false; }

    /// Returns the plate's frame in its window, "{{x, y}, {w, h}}" in whole points from the top
    /// left, or "(no window)" if it is in none.
    QString debugFrameDescription() const;

signals:
    void isSolidChanged();
    void isHeldChanged();
    void wantsBlurChanged();
    void isBlurredChanged();

private:
    bool isSolid_ = true;
    bool isHeld_ = false;
    bool wantsBlur_ = true;
    bool isBlurred_ = false;
};

}  // namespace vantle
