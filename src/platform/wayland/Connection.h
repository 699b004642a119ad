#pragma once

#include <QScreen>
#include <QWindow>
#include <memory>

#include "platform/wayland/Protocols.h"

struct xdg_wm_base;

/// What a Wayland compositor offers besides what the toolkit uses, on the toolkit's own connection.
/// Main thread only.
namespace vantle::wayland {

/// Null on another display server.
wl_display* display();

/// Of the window, while it is created; null otherwise, and on another display server.
wl_surface* surface(QWindow& window);

wl_output* output(QScreen& screen);

/// The user's pointer and keyboard; null while there are none.
wl_seat* seat();

/// Of the user's last click or key.
std::uint32_t lastInputSerial();

/// Bound once; each is null where it is not offered.
struct Globals {
    /// Where the answers to what is asked by these arrive. The toolkit does not dispatch it, so
    /// that one can wait for an answer without handling its events.
    wl_event_queue* queue = nullptr;
    wl_compositor* compositor = nullptr;
    wl_shm* sharedMemory = nullptr;
    layershell::Shell* layerShell = nullptr;
    blur::Manager* blur = nullptr;
    datacontrol::Manager* dataControl = nullptr;
    xdg_wm_base* shell = nullptr;  ///< Of ordinary windows and popups.
    /// Known by what only it offers. It gives a popup that has the pointer the keyboard, too, as
    /// the protocol says, where compositors on wlroots leave it where it is; and it gives the
    /// keyboard to a layer surface that is clicked, whether that wants it or not.
    bool isKWin = false;
    /// Of the layer-shell protocol, as the compositor offers it.
    std::uint32_t layerShellVersion = 0;
};

const Globals& globals();

/// Whether windows can be placed by the layer-shell protocol.
bool offersLayers();

/// What comes from now on is dispatched with the events of the toolkit.
template <typename Object>
void useToolkitQueue(Object* object) {
    wl_proxy_set_queue(reinterpret_cast<wl_proxy*>(object), nullptr);
}

struct RegionDeleter {
    void operator()(wl_region* region) const { wl_region_destroy(region); }
};

/// In the surface's points.
std::unique_ptr<wl_region, RegionDeleter> makeRegion(const QRegion& region);

}  // namespace vantle::wayland
