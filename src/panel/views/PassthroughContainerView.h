#pragma once

#include <QObject>
#include <QQuickWindow>
#include <QRect>

#include "panel/views/GlassBackdropView.h"

namespace vantle {

/// Lets the clicks in a window fall through to what lies beneath, except inside its glass. Where
/// nothing shows windows with their transparency, it cuts the window to the glass as well.
class PassthroughContainerView final : public QObject {
public:
    /// `window` outlives this.
    explicit PassthroughContainerView(QQuickWindow& window);

    /// The first glass below `item`, depth first; null when there is none.
    static GlassBackdropView* findGlass(const QQuickItem& item);

    /// The glass that can be seen in the window; null when there is none.
    GlassBackdropView* visibleGlass() const;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    enum class Repeat { whenChanged, always };
    void follow(Repeat repeat);

    QQuickWindow& window_;
    QRect glassFrame_;
};

}  // namespace vantle
