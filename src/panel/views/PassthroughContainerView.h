#pragma once

#include <QObject>
#include <QQuickWindow>
#include <QRect>
#include <memory>

#include "panel/views/GlassBackdropView.h"
#include "platform/qt/WindowInputRegion.h"

namespace vantle {

/// Lets the clicks in a window fall through to what lies beneath, except inside its glass, and asks
/// the compositor to blur what is behind the glass. Both follow the glass while it moves. If
/// windows are shown without transparency, it also cuts the window to the shape of the glass.
class PassthroughContainerView final : public QObject {
public:
    /// `window` must outlive the object.
    explicit PassthroughContainerView(QQuickWindow& window);

    /// Returns the first glass below `item`, depth first; null if there is none.
    static GlassBackdropView* findGlass(const QQuickItem& item);

    /// Returns the glass that is visible in the window; null if there is none.
    GlassBackdropView* visibleGlass() const;

    /// Returns the item that takes a click at a point of the window. Returns null if the click
    /// falls through, or if it hits a card that is leaving and therefore has no effect. Logs the
    /// result in debug mode.
    QQuickItem* hitTest(const QPointF& point) const;
    /// Does the same without logging.
    QQuickItem* itemAt(const QPointF& point) const;
    /// Returns the identifier of the capture to which the item belongs; empty if it belongs to
    /// none.
    static QString captureOf(const QQuickItem* item);

protected:
    /// Drops the presses that should fall through but are delivered by the window system.
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    enum class Repeat { whenChanged, always };
    void follow(Repeat repeat);
    void updateMask(const GlassBackdropView* glass, const QRegion& shape);

    QQuickWindow& window_;
    const std::unique_ptr<WindowInputRegion> inputRegion_;
    QRect glassFrame_;
    bool glassIsHeld_ = false;
    bool glassWantsBlur_ = false;
    bool blurIsOffered_ = false;
};

}  // namespace vantle
