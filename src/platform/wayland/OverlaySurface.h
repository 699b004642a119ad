#pragma once

#include "platform/wayland/PopupSurface.h"
#include "platform/wayland/SurfacePointer.h"

namespace vantle::wayland {

/// The role of a window above all others at edges of an output. The window is a layer surface. If
/// the compositor gives layer surfaces the keyboard with each click, it is a popup beside an
/// invisible layer surface instead, because popups never take the keyboard. Main thread only.
class OverlaySurface final : public PopupParent {
public:
    /// Tells whether the window may have the keyboard. With `never`, takeKeyboard() may have no
    /// effect.
    enum class Keyboard { never, possible };

    /// `surface` must have no role and no contents yet, and must outlive this object. Returns when
    /// the compositor has placed the surface; from then on it may be given contents.
    OverlaySurface(wl_surface* surface, const LayerSurface::Place& place, Keyboard keyboard);

    /// Returns true if the compositor has refused the surface or has closed it.
    bool isRefused() const;

    /// Moves the window to `place`, which must be on the same output.
    void move(const LayerSurface::Place& place);
    void takeKeyboard() { layer_->takeKeyboard(); }
    void giveBackKeyboard() { layer_->giveBackKeyboard(); }

    xdg_surface* shellSurface() const override;
    void adopt(xdg_popup* popup) override;

    /// Called when the compositor closes the surface, for example because its output was removed.
    std::function<void()> onClosed;

private:
    void placeBesideAnchor(wl_surface* surface, LayerSurface::Place place);

    BufferPointer pixel_;
    SurfacePointer anchor_;  ///< Null if the window itself is a layer surface.
    std::unique_ptr<LayerSurface> layer_;
    std::unique_ptr<PopupSurface> popup_;
};

}  // namespace vantle::wayland
