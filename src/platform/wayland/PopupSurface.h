#pragma once

#include <QRect>
#include <functional>

#include "platform/wayland/LayerSurface.h"

struct xdg_popup;
struct xdg_surface;

namespace vantle::wayland {

/// What a popup stands beside and above.
class PopupParent {
public:
    /// Null where the parent has none; then it adopts the popup.
    virtual xdg_surface* shellSurface() const = 0;
    virtual void adopt(xdg_popup* popup) = 0;

protected:
    ~PopupParent() = default;
};

/// The role of a surface that stands beside a part of another one and above it. Main thread only.
class PopupSurface {
public:
    struct Place {
        QRect anchor;                   ///< The part of the parent.
        QRect kept;                     ///< The part of the popup's own surface that is placed.
        QPoint offset;                  ///< Of that part, from the anchor's corner.
        std::uint32_t corner;           ///< Of the anchor, in the protocol's numbers.
        std::uint32_t gravity;          ///< Where it goes from there.
        std::uint32_t adjustments = 0;  ///< What the compositor may do to keep it on the screen.
    };

    /// Below the anchor, or above it where there is no room.
    static Place below(const QRect& anchor, const QRect& kept, const QPoint& offset);

    enum class Grab {
        nothing,
        pointer,  ///< A click elsewhere dismisses it. The user's last click or key is its reason.
    };

    /// `surface` has no role and no contents yet, and outlives this, as `parent` does. Returns once
    /// the compositor has placed it: now it may be given contents.
    PopupSurface(wl_surface* surface, PopupParent& parent, const Place& place, Grab grab);
    ~PopupSurface();
    PopupSurface(const PopupSurface&) = delete;
    PopupSurface& operator=(const PopupSurface&) = delete;

    xdg_surface* shellSurface() const { return surface_; }

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
