#include "platform/qt/MaximumPixelsPerPoint.h"

#include <QGuiApplication>
#include <QScreen>
#include <atomic>
#include <memory>

namespace vantle {

std::function<double()> maximumPixelsPerPoint() {
    const auto density = std::make_shared<std::atomic<double>>(1.0);
    const auto update = [density] { density->store(qGuiApp->devicePixelRatio()); };
    // Qt has no signal for a change of a screen's scale, but the screen's size in points changes
    // with it.
    const auto follow = [update](QScreen* screen) {
        QObject::connect(screen, &QScreen::geometryChanged, qGuiApp, update);
        update();
    };
    for (QScreen* screen : QGuiApplication::screens()) follow(screen);
    QObject::connect(qGuiApp, &QGuiApplication::screenAdded, qGuiApp, follow);
    QObject::connect(qGuiApp, &QGuiApplication::screenRemoved, qGuiApp, update);
    return [density] { return density->load(); };
}

}  // namespace vantle
