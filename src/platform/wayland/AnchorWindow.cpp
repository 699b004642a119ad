#include "platform/wayland/AnchorWindow.h"

#include <utility>

#include "platform/wayland/SurfaceRegions.h"

namespace vantle::wayland {
namespace {

constexpr int keyboardTimeout = 200;  // milliseconds

}  // namespace

AnchorWindow::AnchorWindow() : overlay_(*this, Overlay::Focus::accepted) {
    timeout_.setSingleShot(true);
    timeout_.setInterval(keyboardTimeout);
    connect(&timeout_, &QTimer::timeout, this, &AnchorWindow::notifyReady);
}

void AnchorWindow::show(const QPoint& place, std::function<void()> ready) {
    ready_ = std::move(ready);
    overlay_.setFrame({place, QSize(1, 1)});
    overlay_.show();
    overlay_.takeKeyboard();
    timeout_.start();
}

void AnchorWindow::hide() {
    ready_ = nullptr;
    timeout_.stop();
    overlay_.giveBackKeyboard();
    overlay_.hide();
}

bool AnchorWindow::event(QEvent* event) {
    if (event->type() == QEvent::Expose && isExposed()) setInputRegion(*this, {});
    const bool isHandled = TransparentWindow::event(event);
    if (event->type() == QEvent::FocusIn) notifyReady();
    return isHandled;
}

void AnchorWindow::notifyReady() {
    timeout_.stop();
    if (const auto ready = std::exchange(ready_, nullptr)) ready();
}

}  // namespace vantle::wayland
