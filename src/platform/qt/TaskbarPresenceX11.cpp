#include <QEvent>
#include <QGuiApplication>
#include <QWindow>
#include <array>

#include "platform/qt/TaskbarPresence.h"
#include "platform/qt/X11.h"

namespace vantle {
namespace {

constexpr std::array absentStates = {"_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"};

/// Of a window that the manager has not seen yet; what Qt adds later leaves these alone.
void writeState(xcb_window_t window) {
    const std::array states{x11::atom(absentStates[0]), x11::atom(absentStates[1])};
    xcb_change_property(x11::connection(), XCB_PROP_MODE_REPLACE, window,
                        x11::atom("_NET_WM_STATE"), XCB_ATOM_ATOM, 32, states.size(),
                        states.data());
}

/// Of a window that the manager keeps: only that may change it.
void requestState(xcb_window_t window, bool isAbsent) {
    constexpr uint32_t fromApplication = 1;
    x11::sendMessage(x11::root(), window, "_NET_WM_STATE",
                     {isAbsent ? 1U : 0U, x11::atom(absentStates[0]), x11::atom(absentStates[1]),
                      fromApplication},
                     XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY);
}

}  // namespace

bool isOrdinaryWindow(const QWindow& window) {
    return window.type() == Qt::Window || window.type() == Qt::Dialog;
}

bool TaskbarPresence::canBeSet() {
    return x11::connection() != nullptr;
}

TaskbarPresence::TaskbarPresence() {
    qGuiApp->installEventFilter(this);
}

void TaskbarPresence::setPresent(bool present) {
    isPresent_ = present;
    if (!x11::connection()) return;
    for (const QWindow* window : QGuiApplication::topLevelWindows())
        if (isOrdinaryWindow(*window) && window->isVisible())
            requestState(x11::number(*window), !isPresent_);
}

bool TaskbarPresence::eventFilter(QObject* watched, QEvent* event) {
    // Before each showing: Qt takes the state away when it hides a window.
    if (event->type() == QEvent::Show)
        if (const auto* window = qobject_cast<const QWindow*>(watched)) apply(*window);
    return false;
}

void TaskbarPresence::apply(const QWindow& window) const {
    if (!isPresent_ && isOrdinaryWindow(window) && x11::connection())
        writeState(x11::number(window));
}

}  // namespace vantle
