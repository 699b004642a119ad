#include "platform/wayland/Connection.h"

#include <qpa/qplatformnativeinterface.h>
#include <xdg-activation-client-protocol.h>
#include <xdg-shell-client-protocol.h>

#include <QGuiApplication>
#include <QRegion>
#include <algorithm>
#include <string_view>

namespace vantle::wayland {
namespace {

/// Only KWin offers this interface, so it identifies KWin.
constexpr std::string_view kwinInterface = "org_kde_plasma_shell";

/// What the compositor has announced about itself.
struct Offered {
    Globals globals;
    bool isKWin = false;
    std::uint32_t layerShellVersion = 0;
};

Globals::Quirks quirksOf(const Offered& offered) {
    constexpr std::uint32_t offeredByKWin6 = 4;  // KWin 5.27 offers 3, KWin 6.3 offers 5.
    return {.popupTakesKeyboard = offered.isKWin,
            .clickTakesKeyboard = offered.isKWin,
            .popupStaysOnWorkspace = offered.isKWin && offered.layerShellVersion < offeredByKWin6};
}

/// Returns null on other display servers.
QPlatformNativeInterface* toolkit() {
    const bool isWayland = QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
    return isWayland ? QGuiApplication::platformNativeInterface() : nullptr;
}

template <typename Object>
void bind(Object*& object, wl_registry* registry, std::uint32_t name, std::uint32_t offered,
          const wl_interface& interface, std::uint32_t version) {
    object = static_cast<Object*>(
        wl_registry_bind(registry, name, &interface, std::min(offered, version)));
}

void bindOffered(void* data, wl_registry* registry, std::uint32_t name, const char* interface,
                 std::uint32_t version) {
    auto& [globals, isKWin, layerShellVersion] = *static_cast<Offered*>(data);
    const std::string_view offered = interface;
    const auto isOffered = [offered](const wl_interface& wanted) { return offered == wanted.name; };
    if (isOffered(wl_compositor_interface))
        bind(globals.compositor, registry, name, version, wl_compositor_interface, 4);
    else if (isOffered(wl_shm_interface))
        bind(globals.sharedMemory, registry, name, version, wl_shm_interface, 1);
    else if (isOffered(layershell::shellInterface)) {
        layerShellVersion = version;
        bind(globals.layerShell, registry, name, version, layershell::shellInterface,
             layershell::version);
    } else if (isOffered(xdg_wm_base_interface))
        bind(globals.shell, registry, name, version, xdg_wm_base_interface, 1);
    else if (isOffered(datacontrol::managerInterface))
        bind(globals.dataControl, registry, name, version, datacontrol::managerInterface,
             datacontrol::version);
    else if (isOffered(xdg_activation_v1_interface))
        bind(globals.activation, registry, name, version, xdg_activation_v1_interface, 1);
    else if (offered == kwinInterface)
        isKWin = true;
    else if (isOffered(blur::managerInterface))
        bind(globals.blur, registry, name, version, blur::managerInterface, blur::version);
}

void forget(void*, wl_registry*, std::uint32_t) {
    // A compositor withdraws what it has offered only when it ends.
}

void answerPing(void*, xdg_wm_base* shell, std::uint32_t serial) {
    xdg_wm_base_pong(shell, serial);
}

void answerPings(xdg_wm_base* shell) {
    static constexpr xdg_wm_base_listener listener{answerPing};
    xdg_wm_base_add_listener(shell, &listener, nullptr);
    // Pings can arrive at any time.
    useToolkitQueue(shell);
}

Globals bindGlobals() {
    Offered offered;
    Globals& globals = offered.globals;
    wl_display* connection = display();
    if (!connection) return globals;
    globals.queue = wl_display_create_queue(connection);
    auto* wrapper = static_cast<wl_display*>(wl_proxy_create_wrapper(connection));
    wl_proxy_set_queue(reinterpret_cast<wl_proxy*>(wrapper), globals.queue);
    wl_registry* registry = wl_display_get_registry(wrapper);
    wl_proxy_wrapper_destroy(wrapper);
    static constexpr wl_registry_listener listener{bindOffered, forget};
    wl_registry_add_listener(registry, &listener, &offered);
    wl_display_roundtrip_queue(connection, globals.queue);
    wl_registry_destroy(registry);
    globals.quirks = quirksOf(offered);
    if (globals.shell) answerPings(globals.shell);
    // Tokens arrive while the toolkit handles its events.
    if (globals.activation) useToolkitQueue(globals.activation);
    return globals;
}

}  // namespace

wl_display* display() {
    QPlatformNativeInterface* native = toolkit();
    return native ? static_cast<wl_display*>(native->nativeResourceForIntegration("wl_display"))
                  : nullptr;
}

wl_surface* surface(QWindow& window) {
    QPlatformNativeInterface* native = toolkit();
    return native && window.handle()
               ? static_cast<wl_surface*>(native->nativeResourceForWindow("surface", &window))
               : nullptr;
}

wl_output* output(QScreen& screen) {
    // While there is no screen, the toolkit has a placeholder without a name and without an output.
    QPlatformNativeInterface* native = toolkit();
    return native && !screen.name().isEmpty()
               ? static_cast<wl_output*>(native->nativeResourceForScreen("output", &screen))
               : nullptr;
}

wl_seat* seat() {
    QPlatformNativeInterface* native = toolkit();
    return native ? static_cast<wl_seat*>(native->nativeResourceForIntegration("wl_seat"))
                  : nullptr;
}

std::uint32_t lastInputSerial() {
    QPlatformNativeInterface* native = toolkit();
    const void* serial = native ? native->nativeResourceForIntegration("serial") : nullptr;
    return static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(serial));
}

const Globals& globals() {
    static const Globals bound = bindGlobals();
    return bound;
}

bool offersLayers() {
    return globals().layerShell && globals().compositor && globals().shell;
}

std::unique_ptr<wl_region, RegionDeleter> makeRegion(const QRegion& region) {
    std::unique_ptr<wl_region, RegionDeleter> made(
        wl_compositor_create_region(globals().compositor));
    for (const QRect& rect : region)
        wl_region_add(made.get(), rect.x(), rect.y(), rect.width(), rect.height());
    return made;
}

}  // namespace vantle::wayland
