#pragma once

#include "platform/wayland/OwnSurface.h"
#include "platform/wayland/PopupSurface.h"

namespace vantle::wayland {

/// The role of a window above all others at edges of an output. It is a layer surface, or, where
/// those take the keyboard with each click, a popup beside one that nobody sees: popups never take
/// it. Main thread only.
class OverlaySurface final : public PopupParent {
public:
    /// Whether the window may have the keyboard: only then can it take it.
    enum class Keyboard { never, possible };

    /// `surface` has no role and no contents yet, and outlives this. Returns once the compositor
    /// has placed it: now it may be given contents.
    OverlaySurface(wl_surface* surface, const LayerSurface::Place& place, Keyboard keyboard);

    /// Whether the compositor has not taken it, or has taken it away.
    bool isRefused() const;

    /// On the same output.
    void move(const LayerSurface::Place& place);
    void takeKeyboard() { layer_->takeKeyboard(); }
    void giveBackKeyboard() { layer_->giveBackKeyboard(); }

    xdg_surface* shellSurface() const override;
    void adopt(xdg_popup* popup) override;

    /// Called when the compositor takes it away, as when its output has gone.
    std::function<void()> onClosed;

private:
    void placeBesideAnchor(wl_surface* surface, LayerSurface::Place place);

    OwnBuffer pixel_;
    OwnSurface anchor_;  ///< Null where the window is a layer surface itself.
    std::unique_ptr<LayerSurface> layer_;
    std::unique_ptr<PopupSurface> popup_;
};

}  // namespace vantle::wayland
