#include <xcb/shape.h>

#include "platform/qt/InputRegion.h"
#include "platform/qt/X11.h"
#include "platform/wayland/SurfaceRegions.h"

namespace vantle {

void setInputRegion(QWindow& window, const QRegion& region) {
    xcb_connection_t* x = x11::connection();
    if (!x) return wayland::setInputRegion(window, region);
    const auto rectangles = x11::inPixels(region, window.devicePixelRatio());
    xcb_shape_rectangles(x, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT, XCB_CLIP_ORDERING_UNSORTED,
                         x11::number(window), 0, 0, static_cast<uint32_t>(rectangles.size()),
                         rectangles.data());
    xcb_flush(x);
}

bool compositorIsRunning() {
    xcb_connection_t* x = x11::connection();
    if (!x) return true;
    // A compositor owns the selection that is named after its screen; Qt's default is the first.
    const auto owner = x11::owned(xcb_get_selection_owner_reply(
        x, xcb_get_selection_owner(x, x11::atom("_NET_WM_CM_S0")), nullptr));
    return owner && owner->owner != XCB_NONE;
}

}  // namespace vantle
