#include "platform/qt/PlacedMenu.h"

#include <algorithm>
#include <string>

#include "platform/qt/DisplayServer.h"
#include "platform/qt/QtGeometry.h"
#include "support/Debug.h"

namespace vantle {

PlacedMenu::PlacedMenu(QWindow& window)
    : window_(window),
      overlay_(DisplayServer::current().makeOverlay(window, Overlay::Focus::accepted)) {}

void PlacedMenu::show(const MenuAnchor& anchor, const QRect& plate) {
    const QRect frame = menuFrame(anchor.frame, plate, window_.size());
    isAboveAnchor_ = frame.top() + plate.top() < anchor.frame.top();
    overlay_->setFrame(frame);
    overlay_->show();
}

void PlacedMenu::exposed() {
    if (!DisplayServer::current().grabsAllKeys()) overlay_->takeKeyboard();
    window_.setMouseGrabEnabled(true);
    const bool getsKeys = window_.setKeyboardGrabEnabled(true);
    Debug::log([&] { return std::string("menu gets the keys: ") + (getsKeys ? "yes" : "no"); });
}

void PlacedMenu::hide() {
    window_.setMouseGrabEnabled(false);
    window_.setKeyboardGrabEnabled(false);
    overlay_->giveBackKeyboard();
    overlay_->hide();
}

QRect menuFrame(const QRect& anchor, const QRect& plate, const QSize& size) {
    constexpr int gap = MenuPlacement::gap;
    constexpr int edge = MenuPlacement::edge;
    const QRect room = DisplayServer::current().usableArea(screenAt(anchor.center()));
    const int below = anchor.bottom() + 1 + gap;
    const int above = anchor.top() - gap - plate.height();
    const int y = below + plate.height() <= room.bottom() + 1 ? below : above;
    const int lowest = room.bottom() + 1 - plate.height();
    const int rightmost = room.right() + 1 - edge - plate.width();
    const int x = std::max(room.left() + edge, std::min(anchor.left(), rightmost));
    return {QPoint(x, std::max(room.top(), std::min(y, lowest))) - plate.topLeft(), size};
}

}  // namespace vantle
