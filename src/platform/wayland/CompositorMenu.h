#pragma once

#include <QObject>
#include <memory>

#include "platform/qt/MenuPlacement.h"
#include "platform/wayland/AnchorWindow.h"
#include "platform/wayland/PopupSurface.h"

namespace vantle::wayland {

/// Has the compositor place a menu: only the compositor knows where things are and can grab the
/// pointer. Main thread only.
class CompositorMenu final : public QObject, public MenuPlacement {
public:
    /// `window` must outlive this object.
    explicit CompositorMenu(QWindow& window);
    ~CompositorMenu() override;

    void show(const MenuAnchor& anchor, const QRect& plate) override;
    void hide() override;
    bool isAboveAnchor() const override { return isAboveAnchor_; }

protected:
    /// Forwards to the menu the keys of the window below it, which keeps the keyboard.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showOverWindow(QWindow& host, const QRect& anchor);
    void showOverLayer(LayerOverlay& host, const QRect& anchor);
    void showAt(const QPoint& place);
    /// Shows the menu with compositors that place only popups of windows that they manage.
    void showAnywhere(const QRect& anchor);
    /// Places the window beside an anchor that is in screen coordinates.
    void placeBeside(const QRect& anchor);
    void readKeysOf(QWindow& host);
    void notifyDismissed();

    QWindow& window_;
    QRect plate_;
    bool isAboveAnchor_ = false;
    std::unique_ptr<AnchorWindow> anchor_;  ///< Created when first needed.
    std::unique_ptr<PopupSurface> popup_;
    Overlay::BorrowedKeyboard keyboard_;
    QMetaObject::Connection hostEnds_;
    QPointer<QWindow> keySource_;
};

}  // namespace vantle::wayland
