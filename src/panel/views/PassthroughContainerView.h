#pragma once

#include <QObject>
#include <QQuickWindow>
#include <QRect>
#include <memory>

#include "panel/views/GlassBackdropView.h"
#include "platform/qt/WindowInputRegion.h"

namespace vantle {

/// Lets the clicks in a window fall through to what lies beneath, except inside its glass, and asks
/// the compositor to blur what is behind that. Both follow the glass while it moves. Where nothing
/// shows windows with their transparency, it cuts the window to the glass as well.
class PassthroughContainerView final : public QObject {
public:
    /// `window` outlives this.
    explicit PassthroughContainerView(QQuickWindow& window);

    /// The first glass below `item`, depth first; null when there is none.
    static GlassBackdropView* findGlass(const QQuickItem& item);

    /// The glass that can be seen in the window; null when there is none.
    GlassBackdropView* visibleGlass() const;

    /// What takes a click at a point of the window; null where it falls through, and where a card
    /// that leaves takes it and does nothing. It logs both while debugging.
    QQuickItem* hitTest(const QPointF& point) const;
    /// The same without a word in the log.
    QQuickItem* itemAt(const QPointF& point) const;

protected:
    /// Drops the presses that fall through, where the window system delivers them nevertheless.
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    enum class Repeat { whenChanged, always };
    void follow(Repeat repeat);
    void cutOut(const GlassBackdropView* glass, const QRegion& shape);

    QQuickWindow& window_;
    const std::unique_ptr<WindowInputRegion> inputRegion_;
    QRect glassFrame_;
    bool blurIsOffered_ = false;
};

}  // namespace vantle
