#pragma once

#include <QObject>
#include <memory>

#include "platform/qt/MenuPlacement.h"
#include "platform/wayland/AnchorWindow.h"
#include "platform/wayland/PopupSurface.h"

namespace vantle::wayland {

/// A menu that the compositor places: only that knows where things are, and only that can hold the
/// pointer. Main thread only.
class CompositorMenu final : public QObject, public MenuPlacement {
public:
    /// `window` outlives this.
    explicit CompositorMenu(QWindow& window);
    ~CompositorMenu() override;

    void show(const MenuAnchor& anchor, const QRect& plate) override;
    void hide() override;

protected:
    /// Sends the menu the keys of the window over which it stands, which keeps the keyboard.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showOverWindow(QWindow& host, const QRect& anchor);
    void showOverLayer(LayerOverlay& host, const QRect& anchor);
    void showAt(const QPoint& place);
    /// Where a compositor places nothing but popups of windows that it manages.
    void showAnywhere(const QRect& anchor);
    void readKeysOf(QWindow& host);
    void tellDismissed();

    QWindow& window_;
    QRect plate_;
    std::unique_ptr<AnchorWindow> anchor_;  ///< Made when it is needed.
    std::unique_ptr<PopupSurface> popup_;
    Overlay::BorrowedKeyboard keyboard_;
    QMetaObject::Connection hostEnds_;
    QPointer<QWindow> keySource_;
};

}  // namespace vantle::wayland
