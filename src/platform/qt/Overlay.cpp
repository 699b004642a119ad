#include "platform/qt/Overlay.h"

#include <QGuiApplication>
#include <utility>

#include "platform/qt/DisplayServer.h"

namespace vantle {
namespace {

QMargins between(const QRect& frame, const QRect& area) {
    return {frame.left() - area.left(), frame.top() - area.top(), area.right() - frame.right(),
            area.bottom() - frame.bottom()};
}

/// Returns a frame that is as far from the same edges of another area.
QRect moved(const QRect& frame, const QRect& from, const QRect& to) {
    const QMargins margins = between(frame, from);
    QRect there(to.topLeft() + QPoint(margins.left(), margins.top()), frame.size());
    if (isNearRight(margins)) there.moveRight(to.right() - margins.right());
    if (isNearBottom(margins)) there.moveBottom(to.bottom() - margins.bottom());
    return there;
}

}  // namespace

bool isNearRight(const QMargins& distances) {
    return distances.right() < distances.left();
}

bool isNearBottom(const QMargins& distances) {
    return distances.bottom() < distances.top();
}

Overlay::Overlay(QWindow& window) : window_(window) {
    connect(
        qGuiApp, &QGuiApplication::screenAdded, this, [this] { screenAdded(); },
        Qt::QueuedConnection);
    connect(
        qGuiApp, &QGuiApplication::screenRemoved, this, [this] { screenRemoved(); },
        Qt::QueuedConnection);
}

void Overlay::setFrame(const QRect& frame) {
    frame_ = frame;
    window_.setGeometry(frame);
}

void Overlay::setScreen(QScreen& screen) {
    screen_ = &screen;
    area_ = DisplayServer::current().usableArea(screen);
}

void Overlay::moveTo(QScreen& screen) {
    setFrame(moved(frame_, area_, DisplayServer::current().usableArea(screen)));
    show();
}

QMargins Overlay::distances() const {
    return between(frame_, area_);
}

Overlay::BorrowedKeyboard Overlay::borrowKeyboard() {
    if (hasKeyboard_) return {};
    takeKeyboard();
    const auto giveBack = [self = QPointer(this)](void*) {
        if (self) self->giveBackKeyboard();
    };
    return {this, giveBack};
}

void Overlay::takeKeyboard() {
    startKeyboard(std::exchange(hasKeyboard_, true));
}

void Overlay::giveBackKeyboard() {
    hasKeyboard_ = false;
    endKeyboard();
}

}  // namespace vantle
