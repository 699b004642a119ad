#include "platform/qt/TaskbarPresence.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWindow>

#include "platform/qt/DisplayServer.h"

namespace vantle {

bool isOrdinaryWindow(const QWindow& window) {
    return window.type() == Qt::Window || window.type() == Qt::Dialog;
}

TaskbarPresence::TaskbarPresence() {
    qGuiApp->installEventFilter(this);
}

void TaskbarPresence::setPresent(bool present) {
    isPresent_ = present;
    for (const QWindow* window : QGuiApplication::topLevelWindows())
        if (isOrdinaryWindow(*window) && window->isVisible())
            DisplayServer::current().setInTaskbar(*window, isPresent_);
}

bool TaskbarPresence::eventFilter(QObject* watched, QEvent* event) {
    // Done each time a window is shown, because Qt resets the state when it hides a window.
    if (event->type() == QEvent::Show)
        if (const auto* window = qobject_cast<const QWindow*>(watched)) apply(*window);
    return false;
}

void TaskbarPresence::apply(const QWindow& window) const {
    if (!isPresent_ && isOrdinaryWindow(window)) DisplayServer::current().keepOutOfTaskbar(window);
}

}  // namespace vantle
