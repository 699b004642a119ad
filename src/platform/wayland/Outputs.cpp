#include "platform/wayland/Outputs.h"

#include <QGuiApplication>
#include <algorithm>

#include "platform/wayland/LayerSurface.h"
#include "platform/wayland/SurfacePointer.h"

namespace vantle::wayland {
namespace {

void enter(void* data, wl_surface*, wl_output* entered) {
    *static_cast<wl_output**>(data) = entered;
}

void leave(void*, wl_surface*, wl_output*) {}

constexpr wl_surface_listener surfaceListener{enter, leave};

/// Returns the output on which the compositor puts a surface that names none; null if it does not
/// tell.
wl_output* chosenOutput() {
    constexpr int maximumRoundTrips = 3;  // because some compositors answer late
    wl_output* chosen = nullptr;
    const BufferPointer buffer = makeEmptyBuffer();
    const SurfacePointer surface = makeSurface();
    wl_surface_add_listener(surface.get(), &surfaceListener, &chosen);
    const LayerSurface role(surface.get(),
                            {.anchors = layershell::top | layershell::left, .size = {1, 1}});
    if (!buffer || role.isRefused()) return nullptr;
    show(surface.get(), buffer.get());
    for (int i = 0; i < maximumRoundTrips && !chosen; ++i)
        if (wl_display_roundtrip_queue(display(), globals().queue) < 0) break;
    return chosen;
}

}  // namespace

QRect usableArea(QScreen& screen) {
    const QRect whole = screen.availableGeometry();
    wl_output* place = offersLayers() ? output(screen) : nullptr;
    if (!place) return whole;
    const SurfacePointer surface = makeSurface();
    const LayerSurface role(surface.get(), {.output = place});
    return role.size().isEmpty() ? whole : QRect(whole.topLeft(), role.size());
}

QScreen* focusedScreen() {
    const auto screens = QGuiApplication::screens();
    if (screens.size() < 2 || !offersLayers() || !globals().sharedMemory) return nullptr;
    wl_output* chosen = chosenOutput();
    const auto found = std::ranges::find_if(
        screens, [chosen](QScreen* screen) { return output(*screen) == chosen; });
    return chosen && found != screens.end() ? *found : nullptr;
}

}  // namespace vantle::wayland
