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

/// Returns null on other display servers.
xcb_connection_t* connection();

/// Returns the root window.
xcb_window_t rootWindow();

/// Returns a property of a window, at most 256 bytes of it; empty if the window does not have it.
std::string property(xcb_window_t window, const char* name);

/// Returns a property of a window that is a list of whole numbers, at most 16,384 of them; empty if
/// the window does not have it.
std::vector<uint32_t> cardinals(xcb_window_t window, const char* name);

/// Returns a property of the window by which the window manager identifies itself; empty if there
/// is none.
std::string propertyOfWindowManager(const char* name);

/// Returns true if the X server is a Wayland compositor's XWayland.
bool isXWayland();

/// Returns the version of Mutter (GNOME Shell's compositor) if it runs behind XWayland, otherwise
/// an empty string; also empty on Wayland and on plain X. How a compositor handles clicks cannot be
/// queried, but depends on this version.
std::string versionOfMutter();

xcb_window_t windowId(const QWindow& window);

/// Returns XCB_ATOM_NONE if the server does not answer. The result is cached.
xcb_atom_t atom(const char* name);

/// Converts a region of a window from points into rectangles in pixels.
std::vector<xcb_rectangle_t> inPixels(const QRegion& region, double pixelsPerPoint);

/// Sends a client message about `window` at once to the clients that listen on `destination` for
/// one of `events`, or to the owner of `destination` if `events` is empty.
void sendMessage(xcb_window_t destination, xcb_window_t window, const char* type,
                 const std::array<uint32_t, 5>& data, uint32_t events = XCB_EVENT_MASK_NO_EVENT);

/// Takes ownership of the server's reply and frees it at the end.
template <typename Reply>
std::unique_ptr<Reply, decltype(&std::free)> owned(Reply* reply) {
    return {reply, &std::free};
}

}  // namespace vantle::x11
