#include <xcb/shape.h>
#include <xcb/xcb.h>

#include <QGuiApplication>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "platform/qt/InputRegion.h"

namespace vantle {
namespace {

/// Null on another display server than X.
xcb_connection_t* connection() {
    const auto* native = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return native ? native->connection() : nullptr;
}

xcb_rectangle_t inPixels(const QRect& rect, double scale) {
    const auto pixels = [scale](int points) { return std::lround(points * scale); };
    return {static_cast<int16_t>(pixels(rect.x())), static_cast<int16_t>(pixels(rect.y())),
            static_cast<uint16_t>(pixels(rect.width())),
            static_cast<uint16_t>(pixels(rect.height()))};
}

template <typename Reply>
std::unique_ptr<Reply, decltype(&std::free)> owned(Reply* reply) {
    return {reply, &std::free};
}

}  // namespace

void setInputRegion(QWindow& window, const QRegion& region) {
    xcb_connection_t* x = connection();
    if (!x) {
        window.setMask(region);  // on Wayland this is the input region alone
        return;
    }
    std::vector<xcb_rectangle_t> rectangles;
    for (const QRect& rect : region)
        rectangles.push_back(inPixels(rect, window.devicePixelRatio()));
    xcb_shape_rectangles(x, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT, XCB_CLIP_ORDERING_UNSORTED,
                         static_cast<xcb_window_t>(window.winId()), 0, 0,
                         static_cast<uint32_t>(rectangles.size()), rectangles.data());
    xcb_flush(x);
}

bool compositorIsRunning() {
    xcb_connection_t* x = connection();
    if (!x) return true;
    // A compositor owns the selection that is named after its screen; Qt's default is the first.
    const std::string name = "_NET_WM_CM_S0";
    const auto atom = owned(xcb_intern_atom_reply(
        x, xcb_intern_atom(x, false, static_cast<uint16_t>(name.size()), name.c_str()), nullptr));
    if (!atom) return false;
    const auto owner =
        owned(xcb_get_selection_owner_reply(x, xcb_get_selection_owner(x, atom->atom), nullptr));
    return owner && owner->owner != XCB_NONE;
}

}  // namespace vantle
