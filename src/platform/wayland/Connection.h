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
    /// How compositors differ where the protocols leave it open.
    struct Quirks {
        /// A popup that has the pointer gets the keyboard, too. Elsewhere that stays where it is.
        bool popupTakesKeyboard = false;
        /// A click gives a layer surface the keyboard, whether it wants it or not.
        bool clickTakesKeyboard = false;
        /// A popup stays on the workspace where it opened, also one of a layer surface.
        bool popupStaysOnWorkspace = false;
    };
    Quirks quirks;
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
