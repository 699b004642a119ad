#pragma once

#include <QRect>
#include <functional>

#include "platform/wayland/LayerSurface.h"

struct xdg_popup;
struct xdg_surface;

namespace vantle::wayland {

/// The role of a surface that opens beside a part of a layer surface and is above it. It has the
/// pointer: a click elsewhere dismisses it. Main thread only.
class PopupSurface {
public:
    struct Place {
        QRect anchor;   ///< What it points to, in the layer surface.
        QRect kept;     ///< The part of the popup's own surface that is kept on the screen.
        QPoint offset;  ///< Of that part from the anchor's lower left corner.
    };

    /// It stands below the anchor, or above it where there is no room. `surface` has no role and no
    /// contents yet, and outlives this, as `parent` does. Returns once the compositor has placed
    /// it: now it may be given contents. It is made while the user's last click or key is the
    /// reason for it.
    PopupSurface(wl_surface* surface, LayerSurface& parent, const Place& place);
    ~PopupSurface();
    PopupSurface(const PopupSurface&) = delete;
    PopupSurface& operator=(const PopupSurface&) = delete;

    /// Whether the compositor has taken it away, as it does when one clicks elsewhere.
    bool isDismissed() const { return isDismissed_; }

    /// Called when it does.
    std::function<void()> onDismissed;

private:
    static void configured(void* data, xdg_surface* surface, std::uint32_t serial);
    static void dismissed(void* data, xdg_popup* popup);
    void waitUntilConfigured();

    xdg_surface* surface_;
    xdg_popup* popup_ = nullptr;
    bool isConfigured_ = false;
    bool isDismissed_ = false;
};

}  // namespace vantle::wayland
