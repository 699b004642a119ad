#include "platform/qt/QtScreens.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include "platform/qt/QtGeometry.h"

namespace vantle {
namespace {

// The primary screen need not stand at Qt's origin.
int primaryBottom() {
    const QScreen* primary = QGuiApplication::primaryScreen();
    return primary ? primary->geometry().y() + primary->geometry().height() : 0;
}

Screen converted(const QScreen& screen) {
    return {toScreenCoordinates(screen.geometry(), primaryBottom()),
            toScreenCoordinates(screen.availableGeometry(), primaryBottom())};
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
    return toScreenCoordinates(QCursor::pos(), primaryBottom());
}

}  // namespace vantle
