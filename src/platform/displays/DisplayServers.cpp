#include "platform/displays/DisplayServers.h"

#include <string>

#include "platform/displays/ServerChoice.h"
#include "platform/wayland/Compositor.h"
#include "platform/wayland/Connection.h"
#include "platform/x11/Connection.h"
#include "platform/x11/Server.h"

namespace vantle::displays {
namespace {

std::string reasonForXWayland() {
    return queryCompositor() == CompositorSupport::windows
               ? "the compositor does not support layer-shell"
               : "";
}

}  // namespace

std::unique_ptr<DisplayServer> makeDisplayServer() {
    if (x11::connection()) return std::make_unique<x11::Server>(reasonForXWayland);
    if (wayland::display()) return std::make_unique<wayland::Compositor>();
    return std::make_unique<DisplayServer>();
}

}  // namespace vantle::displays
