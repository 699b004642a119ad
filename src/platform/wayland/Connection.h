#pragma once

#include <QScreen>
#include <QWindow>
#include <memory>

#include "platform/wayland/Protocols.h"

struct xdg_activation_v1;
struct xdg_wm_base;

/// Access to what a Wayland compositor offers beyond what the toolkit uses, over the toolkit's
/// connection. Main thread only.
namespace vantle::wayland {

/// Returns null on other display servers.
wl_display* display();

/// Returns the surface of the window; null if the window is not created, and on other display
/// servers.
wl_surface* surface(QWindow& window);

wl_output* output(QScreen& screen);

/// Returns the user's pointer and keyboard, or null if there are none.
wl_seat* seat();

/// Returns the serial number of the user's last click or key press.
std::uint32_t lastInputSerial();

/// The compositor's global objects, bound once. A pointer is null if the compositor does not offer
/// the object.
struct Globals {
    /// Receives the answers to requests of these objects. The toolkit does not dispatch this queue,
    /// so we can wait for an answer without handling the toolkit's events.
    wl_event_queue* queue = nullptr;
    wl_compositor* compositor = nullptr;
    wl_shm* sharedMemory = nullptr;
    layershell::Shell* layerShell = nullptr;
    blur::Manager* blur = nullptr;
    datacontrol::Manager* dataControl = nullptr;
    xdg_wm_base* shell = nullptr;             ///< For ordinary windows and popups.
    xdg_activation_v1* activation = nullptr;  ///< Makes tokens for windows of other programs.
    /// Differences between compositors that the protocols allow.
    struct Quirks {
        /// A popup that grabs the pointer gets the keyboard, too. With other compositors the
        /// keyboard stays where it is.
        bool popupTakesKeyboard = false;
        /// A click gives a layer surface the keyboard even if the surface does not accept it.
        bool clickTakesKeyboard = false;
        /// A popup stays on the workspace where it opened, even a popup of a layer surface.
        bool popupStaysOnWorkspace = false;
    };
    Quirks quirks;
};

const Globals& globals();

/// Returns true if windows can be placed by the layer-shell protocol.
bool offersLayers();

/// Has future events of `object` dispatched with the toolkit's events.
template <typename Object>
void useToolkitQueue(Object* object) {
    wl_proxy_set_queue(reinterpret_cast<wl_proxy*>(object), nullptr);
}

struct RegionDeleter {
    void operator()(wl_region* region) const { wl_region_destroy(region); }
};

/// Returns `region`, in the surface's points, as the compositor's object.
std::unique_ptr<wl_region, RegionDeleter> makeRegion(const QRegion& region);

}  // namespace vantle::wayland
