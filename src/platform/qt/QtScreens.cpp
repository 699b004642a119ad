#include "platform/qt/QtScreens.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include "platform/qt/DisplayServer.h"
#include "platform/qt/QtGeometry.h"

namespace vantle {
namespace {

Screen converted(QScreen& screen) {
    return {
        toScreenCoordinates(screen.geometry(), primaryScreenGeometry()),
        toScreenCoordinates(DisplayServer::current().usableArea(screen), primaryScreenGeometry()),
        screen.devicePixelRatio()};
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
    return toScreenCoordinates(DisplayServer::current().userPosition(), primaryScreenGeometry());
}

}  // namespace vantle
