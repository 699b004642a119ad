#include "platform/qt/QtScreens.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include "platform/qt/QtGeometry.h"
#include "platform/qt/UsableArea.h"
#include "platform/wayland/Outputs.h"

namespace vantle {
namespace {

Screen converted(QScreen& screen) {
    return {toScreenCoordinates(screen.geometry(), primaryScreenGeometry()),
            toScreenCoordinates(usableArea(screen), primaryScreenGeometry())};
}

}  // namespace

std::vector<Screen> QtScreens::all() const {
    std::vector<Screen> screens;
    for (QScreen* screen : QGuiApplication::screens()) screens.push_back(converted(*screen));
    return screens;
}

std::optional<Screen> QtScreens::main() const {
    const QWindow* focused = QGuiApplication::focusWindow();
    QScreen* screen = focused ? focused->screen() : QGuiApplication::primaryScreen();
    return screen ? std::optional(converted(*screen)) : std::nullopt;
}

Point QtScreens::pointerLocation() const {
    // A Wayland compositor tells where the pointer is only while it is over a window of ours.
    const QScreen* focused = wayland::focusedScreen();
    const QPoint place = focused ? focused->geometry().center() : QCursor::pos();
    return toScreenCoordinates(place, primaryScreenGeometry());
}

}  // namespace vantle
