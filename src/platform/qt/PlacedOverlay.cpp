#include "platform/qt/PlacedOverlay.h"

#include <QGuiApplication>

#include "platform/qt/QtGeometry.h"

namespace vantle {

PlacedOverlay::PlacedOverlay(QWindow& window, Focus focus) : Overlay(window) {
    // A window that its manager does not manage: only that keeps the focus where it is when it is
    // clicked, and stands on every workspace and above full-screen windows. No popup: assistive
    // programs are not told of those.
    Qt::WindowFlags flags = Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint;
    if (focus == Focus::refused) flags |= Qt::WindowDoesNotAcceptFocus;
    window.setFlags(flags);
}

void PlacedOverlay::show() {
    standsOn(screenAt(frame().center()));
    window().show();
    window().raise();
}

void PlacedOverlay::hide() {
    emit hiding();
    window().hide();
}

void PlacedOverlay::screenRemoved() {
    QScreen* remaining = QGuiApplication::primaryScreen();
    const bool hasLostPlace = window().isVisible() && !screen();
    if (hasLostPlace && remaining) moveTo(*remaining);
}

void PlacedOverlay::startKeyboard(bool) {
    // Qt asks for nothing for a window that does not want it.
    window().setFlag(Qt::WindowDoesNotAcceptFocus, false);
    window().requestActivate();
}

void PlacedOverlay::endKeyboard() {
    window().setFlag(Qt::WindowDoesNotAcceptFocus);
}

}  // namespace vantle
