#include "platform/qt/PlacedOverlay.h"

#include <QGuiApplication>

#include "platform/qt/QtGeometry.h"

namespace vantle {

PlacedOverlay::PlacedOverlay(QWindow& window, Focus focus) : Overlay(window) {
    // Only a window that the window manager does not manage leaves the focus where it is when it is
    // clicked, and appears on every workspace and above full-screen windows. It is no popup,
    // because assistive programs are not notified of popups.
    Qt::WindowFlags flags = Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint;
    if (focus == Focus::refused) flags |= Qt::WindowDoesNotAcceptFocus;
    window.setFlags(flags);
}

void PlacedOverlay::show() {
    setScreen(screenAt(frame().center()));
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
    // Qt requests no activation for a window that does not accept the focus.
    window().setFlag(Qt::WindowDoesNotAcceptFocus, false);
    window().requestActivate();
}

void PlacedOverlay::endKeyboard() {
    window().setFlag(Qt::WindowDoesNotAcceptFocus);
}

}  // namespace vantle
