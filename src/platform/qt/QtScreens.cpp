#include "platform/qt/QtScreens.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include "platform/qt/QtGeometry.h"

namespace vantle {
namespace {

Screen converted(const QScreen& screen) {
    return {toScreenCoordinates(screen.geometry(), primaryScreenGeometry()),
            toScreenCoordinates(screen.availableGeometry(), primaryScreenGeometry())};
}

}  // namespace

std::vector<Screen> QtScreens::all() const {
    std::vector<Screen> screens;
    for (const QScreen* screen : QGuiApplication::screens()) screens.push_back(converted(*screen));
    return screens;
}

std::optional<Screen> QtScreens::main() const {
    const QWindow* focused = QGuiApplication::focusWindow();
    const QScreen* screen = focused ? focused->screen() : QGuiApplication::primaryScreen();
    return screen ? std::optional(converted(*screen)) : std::nullopt;
}

Point QtScreens::pointerLocation() const {
    return toScreenCoordinates(QCursor::pos(), primaryScreenGeometry());
}

}  // namespace vantle
