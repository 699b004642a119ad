#include "menus/MenuAnchor.h"

#include <utility>

#include "platform/qt/InputRegion.h"

namespace vantle {
namespace {

constexpr int patience = 200;  // milliseconds

}  // namespace

MenuAnchor::MenuAnchor() : overlay_(*this, Overlay::Focus::accepted) {
    patience_.setSingleShot(true);
    patience_.setInterval(patience);
    connect(&patience_, &QTimer::timeout, this, &MenuAnchor::tellReady);
}

void MenuAnchor::show(const QPoint& place, std::function<void()> ready) {
    ready_ = std::move(ready);
    overlay_.setFrame({place, QSize(1, 1)});
    overlay_.show();
    overlay_.takeKeyboard();
    patience_.start();
}

void MenuAnchor::hide() {
    ready_ = nullptr;
    patience_.stop();
    overlay_.giveBackKeyboard();
    overlay_.hide();
}

bool MenuAnchor::event(QEvent* event) {
    if (event->type() == QEvent::Expose && isExposed()) setInputRegion(*this, {});
    const bool isHandled = ClearWindow::event(event);
    if (event->type() == QEvent::FocusIn) tellReady();
    return isHandled;
}

void MenuAnchor::tellReady() {
    patience_.stop();
    if (const auto ready = std::exchange(ready_, nullptr)) ready();
}

}  // namespace vantle
