#include "platform/wayland/LayerSurface.h"

namespace vantle::wayland {
namespace {

/// Users can refer to the surface by this name in the settings of their compositor.
constexpr auto surfaceName = "vantle";

}  // namespace

LayerSurface::LayerSurface(wl_surface* surface, const Place& place, layershell::Layer layer)
    : surface_(surface),
      role_(layershell::getLayerSurface(globals().layerShell, surface, place.output, layer,
                                        surfaceName)) {
    static constexpr layershell::Listener listener{configured, closed};
    layershell::addListener(role_, &listener, this);
    request(place);
    waitUntilConfigured();
}

LayerSurface::~LayerSurface() {
    layershell::destroy(role_);
    wl_display_flush(display());
}

void LayerSurface::waitUntilConfigured() {
    while (!isConfigured_ && !isClosed_)
        if (wl_display_dispatch_queue(display(), globals().queue) < 0) return;
    useToolkitQueue(role_);
    wl_display_dispatch_queue_pending(display(), globals().queue);
}

void LayerSurface::configured(void* data, layershell::Surface* role, std::uint32_t serial,
                              std::uint32_t width, std::uint32_t height) {
    layershell::ackConfigure(role, serial);
    auto& self = *static_cast<LayerSurface*>(data);
    self.size_ = QSize(static_cast<int>(width), static_cast<int>(height));
    self.isConfigured_ = true;
}

void LayerSurface::closed(void* data, layershell::Surface*) {
    auto& self = *static_cast<LayerSurface*>(data);
    self.isClosed_ = true;
    if (self.onClosed) self.onClosed();
}

void LayerSurface::move(const Place& place) {
    request(place);
    wl_display_flush(display());
}

void LayerSurface::request(const Place& place) {
    layershell::setSize(role_, static_cast<std::uint32_t>(place.size.width()),
                        static_cast<std::uint32_t>(place.size.height()));
    layershell::setAnchor(role_, place.anchors);
    layershell::setMargin(role_, place.margins.top(), place.margins.right(), place.margins.bottom(),
                          place.margins.left());
    wl_surface_commit(surface_);
}

void LayerSurface::setKeyboard(layershell::Keyboard keyboard) {
    layershell::setKeyboardInteractivity(role_, keyboard);
    wl_surface_commit(surface_);
    wl_display_flush(display());
}

}  // namespace vantle::wayland
