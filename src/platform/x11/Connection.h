#pragma once

#include <xcb/xcb.h>

#include <QRegion>
#include <QWindow>
#include <array>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

namespace vantle::x11 {

/// Null on another display server than X.
xcb_connection_t* connection();

/// The window that everything stands on.
xcb_window_t root();

/// Of a window; empty where it has none of that name. At most 256 bytes of it.
std::string property(xcb_window_t window, const char* name);

/// Of a window, whole numbers; none where it has none of that name. At most 16,384 of them.
std::vector<uint32_t> cardinals(xcb_window_t window, const char* name);

/// Of the window by which the window manager makes itself known; empty where there is none.
std::string propertyOfWindowManager(const char* name);

/// Whether what serves X is a Wayland compositor's XWayland.
bool isXWayland();

/// Of the Mutter, or GNOME Shell, behind XWayland: nobody can ask what a compositor does with
/// clicks, but it tells its version beside its name. Empty where there is none, on Wayland and on
/// plain X.
std::string versionOfMutter();

xcb_window_t number(const QWindow& window);

/// XCB_ATOM_NONE when it cannot be made. Asked for once.
xcb_atom_t atom(const char* name);

/// A region of a window in points, as rectangles in its pixels.
std::vector<xcb_rectangle_t> inPixels(const QRegion& region, double pixelsPerPoint);

/// Sends a client message about `window` to those who listen on `destination` for one of `events`
/// (to its owner when there are none), at once.
void sendMessage(xcb_window_t destination, xcb_window_t window, const char* type,
                 const std::array<uint32_t, 5>& data, uint32_t events = XCB_EVENT_MASK_NO_EVENT);

/// What the server answers is ours to free.
template <typename Reply>
std::unique_ptr<Reply, decltype(&std::free)> owned(Reply* reply) {
    return {reply, &std::free};
}

}  // namespace vantle::x11
