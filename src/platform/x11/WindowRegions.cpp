#include "platform/x11/WindowRegions.h"

#include <xcb/shape.h>

#include <algorithm>
#include <vector>

#include "platform/x11/Connection.h"

namespace vantle::x11 {
namespace {

/// The blur protocol of KDE's compositor, which others have adopted: this property of a window
/// lists the rectangles; the root window has it if a compositor reads it.
constexpr auto blurProperty = "_KDE_NET_WM_BLUR_BEHIND_REGION";

}  // namespace

void setInputRegion(QWindow& window, const QRegion& region) {
    xcb_connection_t* x = connection();
    const auto rectangles = inPixels(region, window.devicePixelRatio());
    xcb_shape_rectangles(x, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT, XCB_CLIP_ORDERING_UNSORTED,
                         windowId(window), 0, 0, static_cast<uint32_t>(rectangles.size()),
                         rectangles.data());
    xcb_flush(x);
}

bool isComposited() {
    xcb_connection_t* x = connection();
    // A compositor owns the selection that is named after its screen; Qt's default is the first
    // screen.
    const auto owner = owned(xcb_get_selection_owner_reply(
        x, xcb_get_selection_owner(x, atom("_NET_WM_CM_S0")), nullptr));
    return owner && owner->owner != XCB_NONE;
}

bool offersBlur() {
    xcb_connection_t* x = connection();
    const auto reply =
        owned(xcb_list_properties_reply(x, xcb_list_properties(x, rootWindow()), nullptr));
    if (!reply) return false;
    const xcb_atom_t* atoms = xcb_list_properties_atoms(reply.get());
    return std::find(atoms, atoms + reply->atoms_len, atom(blurProperty)) !=
           atoms + reply->atoms_len;
}

void setBlurBehind(QWindow& window, const QRegion& region) {
    xcb_connection_t* x = connection();
    // An empty list would mean the whole window.
    if (region.isEmpty()) {
        xcb_delete_property(x, windowId(window), atom(blurProperty));
        xcb_flush(x);
        return;
    }
    std::vector<uint32_t> numbers;
    for (const auto& [left, top, width, height] : inPixels(region, window.devicePixelRatio()))
        for (const int part : {int{left}, int{top}, int{width}, int{height}})
            numbers.push_back(static_cast<uint32_t>(part));
    constexpr uint8_t bits = 32;
    xcb_change_property(x, XCB_PROP_MODE_REPLACE, windowId(window), atom(blurProperty),
                        XCB_ATOM_CARDINAL, bits, static_cast<uint32_t>(numbers.size()),
                        numbers.data());
    xcb_flush(x);
}

}  // namespace vantle::x11
