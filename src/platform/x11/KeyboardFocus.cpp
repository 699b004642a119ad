#include "platform/x11/KeyboardFocus.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QWindow>
#include <algorithm>

#include "platform/x11/Connection.h"

namespace vantle::x11 {
namespace {

/// What the window manager of the first screen owns.
constexpr const char* selectionOfManager = "WM_S0";

xcb_window_t focused(xcb_connection_t* x) {
    const auto reply = owned(xcb_get_input_focus_reply(x, xcb_get_input_focus(x), nullptr));
    return reply ? reply->focus : xcb_window_t{XCB_NONE};
}

void focus(xcb_connection_t* x, xcb_window_t window) {
    xcb_set_input_focus(x, XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
    xcb_flush(x);
}

bool isOurs(xcb_window_t wanted) {
    return std::ranges::any_of(QGuiApplication::allWindows(), [wanted](const QWindow* window) {
        return window->handle() && windowId(*window) == wanted;
    });
}

/// Returns the window that gets the keyboard back. Behind Mutter's XWayland that is the root
/// window, unless a window of ours had it: if no X window has the keyboard, Mutter returns it to
/// the window that had it last, which may be a Wayland window.
xcb_window_t windowToRestore(xcb_window_t previous) {
    return versionOfMutter().empty() || isOurs(previous) ? previous : rootWindow();
}

}  // namespace

void KeyboardFocus::take() {
    if (versionOfMutter().empty())
        takeNow();
    else
        takeWhenMutterKnowsIt();
}

// Mutter sends no keys to a window that gets the focus before Mutter has noticed that it appeared.
// It handles the events of the X server in order, so when it answers a later question, it knows the
// window. Each window manager owns a selection and answers questions about it (ICCCM 4.3).
void KeyboardFocus::takeWhenMutterKnowsIt() {
    QCoreApplication::instance()->installNativeEventFilter(this);
    xcb_connection_t* x = connection();
    xcb_convert_selection(x, windowId(window_), atom(selectionOfManager), atom("VERSION"),
                          atom("VANTLE_VERSION"), XCB_CURRENT_TIME);
    xcb_flush(x);
}

bool KeyboardFocus::nativeEventFilter(const QByteArray&, void* message, qintptr*) {
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    if ((event->response_type & 0x7f) != XCB_SELECTION_NOTIFY || !window_.handle()) return false;
    const auto* answer = reinterpret_cast<const xcb_selection_notify_event_t*>(event);
    const bool isForWindow = answer->requestor == windowId(window_);
    if (!isForWindow || answer->selection != atom(selectionOfManager)) return false;
    stopWaiting();
    takeNow();
    return false;
}

void KeyboardFocus::stopWaiting() {
    QCoreApplication::instance()->removeNativeEventFilter(this);
}

void KeyboardFocus::takeNow() {
    xcb_connection_t* x = connection();
    const xcb_window_t before = focused(x);
    if (before == windowId(window_)) return;
    previous_ = before;
    focus(x, windowId(window_));
}

void KeyboardFocus::giveBack() {
    stopWaiting();
    if (previous_ == 0) return;
    xcb_connection_t* x = connection();
    if (focused(x) == windowId(window_)) focus(x, windowToRestore(previous_));
    previous_ = 0;
}

}  // namespace vantle::x11
