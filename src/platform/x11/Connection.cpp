#include "platform/x11/Connection.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <map>
#include <string>
#include <string_view>

namespace vantle::x11 {

xcb_connection_t* connection() {
    const auto* native = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return native ? native->connection() : nullptr;
}

xcb_window_t rootWindow() {
    // Qt uses the first screen unless DISPLAY names another one, which is no longer common.
    return xcb_setup_roots_iterator(xcb_get_setup(connection())).data->root;
}

bool isXWayland() {
    // XWayland has this extension since version 23.1; before, only its outputs' names identify it.
    constexpr std::string_view extension = "XWAYLAND";
    const auto reply = owned(xcb_query_extension_reply(
        connection(), xcb_query_extension(connection(), extension.size(), extension.data()),
        nullptr));
    const auto screens = QGuiApplication::screens();
    return (reply && reply->present != 0) ||
           std::ranges::any_of(screens, [](const QScreen* screen) {
               return screen->name().startsWith(QLatin1String("XWAYLAND"));
           });
}

std::string versionOfMutter() {
    if (!connection() || !isXWayland()) return {};
    return propertyOfWindowManager("_MUTTER_VERSION");
}

xcb_window_t windowId(const QWindow& window) {
    return static_cast<xcb_window_t>(window.winId());
}

xcb_atom_t atom(const char* name) {
    static std::map<std::string, xcb_atom_t> known;
    const auto found = known.find(name);
    if (found != known.end()) return found->second;
    const auto reply = owned(xcb_intern_atom_reply(
        connection(),
        xcb_intern_atom(connection(), false, static_cast<uint16_t>(std::strlen(name)), name),
        nullptr));
    if (!reply) return XCB_ATOM_NONE;
    return known[name] = reply->atom;
}

namespace {

/// `maximum` is in units of four bytes.
auto propertyReply(xcb_window_t window, const char* name, uint32_t maximum) {
    return owned(xcb_get_property_reply(
        connection(),
        xcb_get_property(connection(), false, window, atom(name), XCB_ATOM_ANY, 0, maximum),
        nullptr));
}

}  // namespace

std::vector<uint32_t> cardinals(xcb_window_t window, const char* name) {
    constexpr uint32_t maximum = 16'384;
    constexpr uint8_t bits = 32;
    const auto reply = propertyReply(window, name, maximum);
    if (!reply || reply->format != bits) return {};
    const auto* first = static_cast<const uint32_t*>(xcb_get_property_value(reply.get()));
    return {first, first + reply->value_len};
}

std::string property(xcb_window_t window, const char* name) {
    constexpr uint32_t maximum = 64;
    const auto reply = propertyReply(window, name, maximum);
    if (!reply) return {};
    return {static_cast<const char*>(xcb_get_property_value(reply.get())),
            static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
}

std::string propertyOfWindowManager(const char* name) {
    const std::string number = property(rootWindow(), "_NET_SUPPORTING_WM_CHECK");
    xcb_window_t window = XCB_WINDOW_NONE;
    if (number.size() == sizeof window) std::memcpy(&window, number.data(), sizeof window);
    return window == XCB_WINDOW_NONE ? std::string() : property(window, name);
}

std::vector<xcb_rectangle_t> inPixels(const QRegion& region, double pixelsPerPoint) {
    const auto pixels = [pixelsPerPoint](int points) {
        return std::lround(points * pixelsPerPoint);
    };
    std::vector<xcb_rectangle_t> rectangles;
    for (const QRect& rect : region)
        rectangles.push_back({static_cast<int16_t>(pixels(rect.x())),
                              static_cast<int16_t>(pixels(rect.y())),
                              static_cast<uint16_t>(pixels(rect.width())),
                              static_cast<uint16_t>(pixels(rect.height()))});
    return rectangles;
}

void sendMessage(xcb_window_t destination, xcb_window_t window, const char* type,
                 const std::array<uint32_t, 5>& data, uint32_t events) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = atom(type);
    std::ranges::copy(data, message.data.data32);
    xcb_send_event(connection(), false, destination, events,
                   reinterpret_cast<const char*>(&message));
    xcb_flush(connection());
}

}  // namespace vantle::x11
