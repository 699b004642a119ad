#include "platform/wayland/OverlaySurface.h"

#include <xdg-shell-client-protocol.h>

namespace vantle::wayland {
namespace {

constexpr QSize pixelSize(1, 1);

/// Returns the corner of the window that is at the corner of the output.
std::uint32_t cornerOf(const LayerSurface::Place& place) {
    const bool isRight = (place.anchors & layershell::right) != 0;
    if ((place.anchors & layershell::bottom) != 0)
        return isRight ? XDG_POSITIONER_ANCHOR_BOTTOM_RIGHT : XDG_POSITIONER_ANCHOR_BOTTOM_LEFT;
    return isRight ? XDG_POSITIONER_ANCHOR_TOP_RIGHT : XDG_POSITIONER_ANCHOR_TOP_LEFT;
}

/// Returns the direction from that corner to the inside of the output.
std::uint32_t gravityFrom(std::uint32_t corner) {
    switch (corner) {
        case XDG_POSITIONER_ANCHOR_BOTTOM_RIGHT:
            return XDG_POSITIONER_GRAVITY_TOP_LEFT;
        case XDG_POSITIONER_ANCHOR_BOTTOM_LEFT:
            return XDG_POSITIONER_GRAVITY_TOP_RIGHT;
        case XDG_POSITIONER_ANCHOR_TOP_RIGHT:
            return XDG_POSITIONER_GRAVITY_BOTTOM_LEFT;
        default:
            return XDG_POSITIONER_GRAVITY_BOTTOM_RIGHT;
    }
}

}  // namespace

OverlaySurface::OverlaySurface(wl_surface* surface, const LayerSurface::Place& place,
                               Keyboard keyboard) {
    const bool clicksTakeKeyboard = globals().quirks.clickTakesKeyboard && globals().sharedMemory;
    if (clicksTakeKeyboard && keyboard == Keyboard::never)
        placeBesideAnchor(surface, place);
    else
        layer_ = std::make_unique<LayerSurface>(surface, place);
    const auto close = [this] {
        if (onClosed) onClosed();
    };
    layer_->onClosed = close;
    if (popup_) popup_->onDismissed = close;
}

void OverlaySurface::placeBesideAnchor(wl_surface* surface, LayerSurface::Place place) {
    const QRect whole(QPoint(), place.size);
    const std::uint32_t corner = cornerOf(place);
    place.size = pixelSize;
    pixel_ = makeEmptyBuffer();
    anchor_ = makeSurface();
    // This compositor shows popups above full-screen windows whatever their parent's layer is. On
    // the top layer, the menus of the desktop's panels, which are popups too, can appear above the
    // card.
    layer_ = std::make_unique<LayerSurface>(anchor_.get(), place, layershell::Layer::top);
    if (layer_->isRefused()) return;
    show(anchor_.get(), pixel_.get());
    popup_ = std::make_unique<PopupSurface>(surface, *this,
                                            PopupSurface::Place{.anchor = {QPoint(), pixelSize},
                                                                .kept = whole,
                                                                .corner = corner,
                                                                .gravity = gravityFrom(corner)},
                                            PopupSurface::Grab::nothing);
}

bool OverlaySurface::isRefused() const {
    return layer_->isRefused() || (popup_ && popup_->isDismissed());
}

void OverlaySurface::move(const LayerSurface::Place& place) {
    LayerSurface::Place moved = place;
    if (anchor_) moved.size = pixelSize;
    layer_->move(moved);
}

xdg_surface* OverlaySurface::shellSurface() const {
    return popup_ ? popup_->shellSurface() : nullptr;
}

void OverlaySurface::adopt(xdg_popup* popup) {
    if (!popup_) layer_->adopt(popup);
}

}  // namespace vantle::wayland
