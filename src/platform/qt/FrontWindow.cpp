#include "platform/qt/FrontWindow.h"

#include <QGuiApplication>
#include <QPointer>

#include "platform/qt/DisplayServer.h"
#include "platform/qt/TaskbarPresence.h"

namespace vantle {
namespace {

/// The window that came to the front last, by this program or by the user.
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

/// An alert stands above all windows, but not above the one that the user asks for afterwards.
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
