#include <QGuiApplication>

#include "platform/qt/DisplayConnection.h"
#include "platform/qt/X11.h"
#include "platform/wayland/Connection.h"

namespace vantle {

bool isDisplayLost() {
    if (!qGuiApp) return false;
    if (wl_display* compositor = wayland::display()) return wl_display_get_error(compositor) != 0;
    xcb_connection_t* server = x11::connection();
    return server && xcb_connection_has_error(server) != 0;
}

}  // namespace vantle
