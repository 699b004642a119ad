#include "platform/qt/KeyboardFocus.h"
#include "platform/qt/X11.h"

namespace vantle {
namespace {

xcb_window_t focused(xcb_connection_t* x) {
    const auto reply = x11::owned(xcb_get_input_focus_reply(x, xcb_get_input_focus(x), nullptr));
    return reply ? reply->focus : xcb_window_t{XCB_NONE};
}

void focus(xcb_connection_t* x, xcb_window_t window) {
    xcb_set_input_focus(x, XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
    xcb_flush(x);
}

/// A window that speaks Wayland is none on X. But Mutter gives the keyboard to the window that had
/// it last, wherever nobody has it.
xcb_window_t whoGetsItBack(xcb_window_t previous) {
    return x11::versionOfMutter().empty() ? previous : x11::root();
}

}  // namespace

void KeyboardFocus::take() {
    xcb_connection_t* x = x11::connection();
    if (!x) {
        // Qt asks for nothing for a window that does not want it.
        window_.setFlag(Qt::WindowDoesNotAcceptFocus, false);
        window_.requestActivate();
        return;
    }
    const xcb_window_t before = focused(x);
    if (before == x11::number(window_)) return;
    previous_ = before;
    focus(x, x11::number(window_));
}

void KeyboardFocus::giveBack() {
    xcb_connection_t* x = x11::connection();
    if (!x) window_.setFlag(Qt::WindowDoesNotAcceptFocus);
    if (!x || previous_ == 0) return;
    if (focused(x) == x11::number(window_)) focus(x, whoGetsItBack(previous_));
    previous_ = 0;
}

}  // namespace vantle
