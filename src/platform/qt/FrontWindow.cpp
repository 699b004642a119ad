#include "platform/qt/FrontWindow.h"

#include <QGuiApplication>
#include <QPointer>

#include "platform/qt/DisplayServer.h"
#include "platform/qt/TaskbarPresence.h"

namespace vantle {
namespace {

/// Remembers the window that this program or the user brought to the front last.
class LastInFront {
public:
    LastInFront() {
        QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, [this](QWindow* window) {
            if (window && isOrdinaryWindow(*window)) window_ = window;
        });
    }

    QWindow* window() const { return window_; }
    void set(QWindow& window) { window_ = &window; }

private:
    QPointer<QWindow> window_;
};

LastInFront& lastInFront() {
    static LastInFront last;
    return last;
}

/// An alert stays above all windows except one that the user opens afterwards.
void lowerOthers(const QWindow& front) {
    for (QWindow* window : QGuiApplication::topLevelWindows())
        if (window != &front && isOrdinaryWindow(*window) &&
            window->flags().testFlag(Qt::WindowStaysOnTopHint))
            window->setFlag(Qt::WindowStaysOnTopHint, false);
}

}  // namespace

void bringToFront(QWindow& window) {
    lastInFront().set(window);
    lowerOthers(window);
    DisplayServer::current().bringToFront(window);
}

void bringLastToFront() {
    QWindow* last = lastInFront().window();
    if (last && last->isVisible() && !DisplayServer::current().isOnOtherWorkspace(*last))
        bringToFront(*last);
}

}  // namespace vantle
