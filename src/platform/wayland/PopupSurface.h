#pragma once

#include <QRect>
#include <functional>

#include "platform/wayland/LayerSurface.h"

struct xdg_popup;
struct xdg_surface;

namespace vantle::wayland {

/// A surface that can have popups.
class PopupParent {
public:
    /// Returns null if the parent has no such object; then adopt() is called for its popups.
    virtual xdg_surface* shellSurface() const = 0;
    virtual void adopt(xdg_popup* popup) = 0;

protected:
    ~PopupParent() = default;
};

/// The role of a surface that is placed above another one, beside a part of it. Main thread only.
class PopupSurface {
public:
    struct Place {
        QRect anchor;                   ///< The part of the parent beside which the popup is.
        QRect kept;                     ///< The part of the popup's surface that is placed.
        QPoint offset;                  ///< From the anchor's corner to the placed part.
        std::uint32_t corner;           ///< The anchor's corner, in the protocol's numbers.
        std::uint32_t gravity;          ///< The direction from the corner, in the same.
        std::uint32_t adjustments = 0;  ///< How the compositor may keep it on the screen.
    };

    /// Returns a place below the anchor, or above it if there is no room below.
    static Place below(const QRect& anchor, const QRect& kept, const QPoint& offset);

    enum class Grab {
        nothing,
        pointer,  ///< A click elsewhere dismisses the popup. Requires a recent click or key press.
    };

    /// `surface` must have no role and no contents yet. It and `parent` must outlive this object.
    /// Returns when the compositor has placed the popup; from then on it may be given contents.
    PopupSurface(wl_surface* surface, PopupParent& parent, const Place& place, Grab grab);
    ~PopupSurface();
    PopupSurface(const PopupSurface&) = delete;
    PopupSurface& operator=(const PopupSurface&) = delete;

    xdg_surface* shellSurface() const { return surface_; }

    /// Returns where the placed part of the popup begins, from the top of the parent.
    int top() const { return top_; }

    /// Returns true if the compositor has dismissed the popup, for example after a click elsewhere.
    bool isDismissed() const { return isDismissed_; }

    /// Called when the compositor dismisses the popup.
    std::function<void()> onDismissed;

private:
    static void placed(void* data, xdg_popup* popup, std::int32_t x, std::int32_t y,
                       std::int32_t width, std::int32_t height);
    static void configured(void* data, xdg_surface* surface, std::uint32_t serial);
    static void dismissed(void* data, xdg_popup* popup);
    void waitUntilConfigured();

    xdg_surface* surface_;
    xdg_popup* popup_ = nullptr;
    int top_ = 0;
    bool isConfigured_ = false;
    bool isDismissed_ = false;
};

}  // namespace vantle::wayland
