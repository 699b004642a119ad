// What an X server and those who serve its windows tell about themselves.

#include <QGuiApplication>
#include <string>

#include "platform/qt/BlurBehind.h"
#include "platform/qt/DesktopFacts.h"
#include "platform/qt/X11.h"
#include "platform/wayland/Connection.h"
#include "platform/wayland/ServerChoice.h"

namespace vantle {
namespace {

std::string windowManager() {
    const std::string name = x11::propertyOfWindowManager("_NET_WM_NAME");
    return name.empty() ? "unknown" : name;
}

bool isComposited() {
    const auto owner = x11::owned(xcb_get_selection_owner_reply(
        x11::connection(), xcb_get_selection_owner(x11::connection(), x11::atom("_NET_WM_CM_S0")),
        nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

std::string server() {
    const xcb_setup_t* setup = xcb_get_setup(x11::connection());
    const std::string vendor(xcb_setup_vendor(setup),
                             static_cast<std::size_t>(xcb_setup_vendor_length(setup)));
    return vendor + " " + std::to_string(setup->release_number);
}

Fact blurFact() {
    return {"blur behind windows", blurBehindIsOffered() ? "offered" : "not offered"};
}

}  // namespace

std::string displayServer() {
    if (x11::connection()) {
        if (!x11::isXWayland()) return "X11";
        const bool isNeeded = wayland::askCompositor() == wayland::Offer::windows;
        return isNeeded ? "X11 through XWayland: the compositor offers no layer-shell"
                        : "X11 through XWayland";
    }
    if (!wayland::display()) return QGuiApplication::platformName().toStdString();
    return wayland::offersLayers()
               ? "Wayland"
               : "Wayland: the compositor offers no layer-shell, and so no place";
}

std::vector<Fact> displayServerFacts() {
    if (!x11::connection()) return {{"display server", displayServer()}, blurFact()};
    return {{"display server", displayServer() + ", " + server()},
            {"window manager", windowManager()},
            {"compositor", isComposited() ? "yes" : "none"},
            blurFact()};
}

}  // namespace vantle
