// The blur protocol of KDE's compositor, which others have taken over: a property of the window
// lists the rectangles, and one of the root window says that somebody reads it.

#include <algorithm>
#include <cmath>

#include "platform/qt/BlurBehind.h"
#include "platform/qt/X11.h"
#include "platform/wayland/SurfaceRegions.h"

namespace vantle {
namespace {

constexpr auto property = "_KDE_NET_WM_BLUR_BEHIND_REGION";

}  // namespace

bool blurBehindIsOffered() {
    xcb_connection_t* x = x11::connection();
    if (!x) return wayland::offersBlur();
    const auto reply =
        x11::owned(xcb_list_properties_reply(x, xcb_list_properties(x, x11::root()), nullptr));
    if (!reply) return false;
    const xcb_atom_t* atoms = xcb_list_properties_atoms(reply.get());
    return std::find(atoms, atoms + reply->atoms_len, x11::atom(property)) !=
           atoms + reply->atoms_len;
}

void setBlurBehind(QWindow& window, const QRegion& region) {
    xcb_connection_t* x = x11::connection();
    if (!x) return wayland::setBlurBehind(window, region);
    // An empty list would mean the whole window.
    if (region.isEmpty()) {
        xcb_delete_property(x, x11::number(window), x11::atom(property));
        xcb_flush(x);
        return;
    }
    std::vector<uint32_t> numbers;
    for (const auto& [left, top, width, height] : x11::inPixels(region, window.devicePixelRatio()))
        for (const int part : {int{left}, int{top}, int{width}, int{height}})
            numbers.push_back(static_cast<uint32_t>(part));
    constexpr uint8_t bits = 32;
    xcb_change_property(x, XCB_PROP_MODE_REPLACE, x11::number(window), x11::atom(property),
                        XCB_ATOM_CARDINAL, bits, static_cast<uint32_t>(numbers.size()),
                        numbers.data());
    xcb_flush(x);
}

}  // namespace vantle
