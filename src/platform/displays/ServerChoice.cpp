#include "platform/displays/ServerChoice.h"

#include <QByteArray>
#include <memory>
#include <string_view>

#include "platform/wayland/Protocols.h"

namespace vantle::displays {
namespace {

constexpr auto variable = "QT_QPA_PLATFORM";
// With this variable the toolkit gives windows with BypassWindowManagerHint none of a window
// manager's roles, so that the program can give them its own.
constexpr auto overlayVariable = "QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT";
// Compositors that offer overlays draw the frames of windows themselves. Without this variable the
// toolkit finds that out only after it has loaded OpenGL to draw them, which takes 25 MiB.
constexpr auto noFramesVariable = "QT_WAYLAND_DISABLE_WINDOWDECORATION";

struct ConnectionDeleter {
    void operator()(wl_display* connection) const { wl_display_disconnect(connection); }
};
struct RegistryDeleter {
    void operator()(wl_registry* registry) const { wl_registry_destroy(registry); }
};

void globalAdded(void* data, wl_registry*, std::uint32_t, const char* interface, std::uint32_t) {
    if (std::string_view(interface) == wayland::layershell::shellInterface.name)
        *static_cast<CompositorSupport*>(data) = CompositorSupport::overlays;
}

void globalRemoved(void*, wl_registry*, std::uint32_t) {}

}  // namespace

CompositorSupport queryCompositor() {
    // A connection that was handed to this program must be left to the toolkit, because it can be
    // used only once.
    if (qEnvironmentVariableIsSet("WAYLAND_SOCKET")) return CompositorSupport::none;
    const std::unique_ptr<wl_display, ConnectionDeleter> connection(wl_display_connect(nullptr));
    if (!connection) return CompositorSupport::none;
    CompositorSupport support = CompositorSupport::windows;
    const std::unique_ptr<wl_registry, RegistryDeleter> registry(
        wl_display_get_registry(connection.get()));
    static constexpr wl_registry_listener listener{globalAdded, globalRemoved};
    wl_registry_add_listener(registry.get(), &listener, &support);
    return wl_display_roundtrip(connection.get()) < 0 ? CompositorSupport::none : support;
}

std::string serversToTry(const Session& session) {
    const bool isWaylandFirst = session.support == CompositorSupport::overlays ||
                                (session.support == CompositorSupport::windows && !session.hasX11);
    return isWaylandFirst ? "wayland;xcb" : "xcb;wayland";
}

bool isWaylandSession(const Environment& environment) {
    return environment("WAYLAND_DISPLAY") || environment("XDG_SESSION_TYPE") == "wayland" ||
           environment(variable).value_or("").starts_with("wayland");
}

ServerChoice::ServerChoice() : isChosenByUser_(qEnvironmentVariableIsSet(variable)) {
    const auto environment = processEnvironment();
    const CompositorSupport support =
        isWaylandSession(environment) ? queryCompositor() : CompositorSupport::none;
    if (support == CompositorSupport::overlays)
        for (const auto& name : toolkitVariables()) qputenv(name.c_str(), "1");
    if (isChosenByUser_) return;
    const Session session{support, environment("DISPLAY").has_value()};
    qputenv(variable, QByteArray::fromStdString(serversToTry(session)));
}

ServerChoice::~ServerChoice() {
    if (!isChosenByUser_) qunsetenv(variable);
}

const std::vector<std::string>& toolkitVariables() {
    static const std::vector<std::string> names{overlayVariable, noFramesVariable};
    return names;
}

}  // namespace vantle::displays
