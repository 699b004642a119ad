#include "platform/wayland/CompositorMenu.h"

#include <QCoreApplication>
#include <QEvent>

#include "platform/qt/PlacedMenu.h"

namespace vantle::wayland {

CompositorMenu::CompositorMenu(QWindow& window) : window_(window) {
    Qt::WindowFlags flags = Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint;
    if (offersLayers()) flags |= Qt::BypassWindowManagerHint;
    window.setFlags(flags);
}

CompositorMenu::~CompositorMenu() = default;

void CompositorMenu::show(const MenuAnchor& anchor, const QRect& plate) {
    plate_ = plate;
    if (anchor.window) return showOverWindow(*anchor.window, anchor.frame);
    auto* host = qobject_cast<LayerOverlay*>(anchor.overlay.data());
    if (host && host->surface()) return showOverLayer(*host, anchor.frame);
    if (offersLayers())
        showAt(anchor.frame.center());
    else
        showAnywhere(anchor.frame);
}

void CompositorMenu::showOverWindow(QWindow& host, const QRect& anchor) {
    window_.setFlags(Qt::Popup | Qt::FramelessWindowHint);
    window_.setTransientParent(&host);
    readKeysOf(host);
    placeBeside(anchor);
    window_.show();
}

void CompositorMenu::placeBeside(const QRect& anchor) {
    const QRect frame = menuFrame(anchor, plate_, window_.size());
    isAboveAnchor_ = frame.top() + plate_.top() < anchor.top();
    window_.setGeometry(frame);
}

void CompositorMenu::showOverLayer(LayerOverlay& host, const QRect& anchor) {
    if (!host.surface()) return notifyDismissed();
    window_.setScreen(host.window().screen());
    window_.create();
    const QRect inHost = anchor.translated(-host.window().position());
    // The keyboard is borrowed before the popup grabs the pointer; afterwards no other window gets
    // it.
    if (!globals().quirks.popupTakesKeyboard) keyboard_ = host.borrowKeyboard();
    popup_ = std::make_unique<PopupSurface>(
        surface(window_), *host.surface(),
        PopupSurface::below(inHost, plate_.marginsAdded({edge, 0, edge, 0}), {-edge, gap}),
        PopupSurface::Grab::pointer);
    isAboveAnchor_ = popup_->top() < inHost.top();
    const auto dismissed = [this] { notifyDismissed(); };
    popup_->onDismissed = [this, dismissed] {
        QMetaObject::invokeMethod(this, dismissed, Qt::QueuedConnection);
    };
    hostEnds_ = connect(&host, &Overlay::hiding, this, dismissed);
    readKeysOf(host.window());
    window_.show();
    if (popup_->isDismissed()) popup_->onDismissed();
}

void CompositorMenu::showAt(const QPoint& place) {
    if (!anchor_) anchor_ = std::make_unique<AnchorWindow>();
    anchor_->show(place, [this, place] {
        showOverLayer(anchor_->overlay(), {place, QSize(1, 1)});
    });
}

void CompositorMenu::showAnywhere(const QRect& anchor) {
    placeBeside(anchor);
    window_.show();
    window_.raise();
}

void CompositorMenu::hide() {
    if (keySource_) keySource_->removeEventFilter(this);
    keySource_ = nullptr;
    disconnect(hostEnds_);
    // No other window gets the keyboard while the popup grabs the pointer.
    popup_.reset();
    keyboard_.reset();
    window_.hide();
    if (anchor_) anchor_->hide();
    // A surface keeps its role forever, so the next menu needs a new one.
    window_.destroy();
}

void CompositorMenu::readKeysOf(QWindow& host) {
    keySource_ = &host;
    host.installEventFilter(this);
}

bool CompositorMenu::eventFilter(QObject* watched, QEvent* event) {
    const bool isKey = event->type() == QEvent::KeyPress && watched == keySource_;
    return isKey && QCoreApplication::sendEvent(&window_, event);
}

void CompositorMenu::notifyDismissed() {
    if (onDismissed) onDismissed();
}

}  // namespace vantle::wayland
