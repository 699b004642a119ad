#include "platform/wayland/PopupSurface.h"

#include <xdg-shell-client-protocol.h>

namespace vantle::wayland {
namespace {

xdg_positioner* makePositioner(const PopupSurface::Place& place) {
    xdg_positioner* positioner = xdg_wm_base_create_positioner(globals().shell);
    xdg_positioner_set_size(positioner, place.kept.width(), place.kept.height());
    xdg_positioner_set_anchor_rect(positioner, place.anchor.x(), place.anchor.y(),
                                   place.anchor.width(), place.anchor.height());
    xdg_positioner_set_anchor(positioner, place.corner);
    xdg_positioner_set_gravity(positioner, place.gravity);
    xdg_positioner_set_offset(positioner, place.offset.x(), place.offset.y());
    xdg_positioner_set_constraint_adjustment(positioner, place.adjustments);
    return positioner;
}

/// Creates an object whose events arrive in the queue of globals(), where we can wait for them.
xdg_surface* makeShellSurface(wl_surface* surface) {
    auto* shell = static_cast<xdg_wm_base*>(wl_proxy_create_wrapper(globals().shell));
    wl_proxy_set_queue(reinterpret_cast<wl_proxy*>(shell), globals().queue);
    xdg_surface* made = xdg_wm_base_get_xdg_surface(shell, surface);
    wl_proxy_wrapper_destroy(shell);
    return made;
}

void placedAgain(void*, xdg_popup*, std::uint32_t) {}

}  // namespace

PopupSurface::Place PopupSurface::below(const QRect& anchor, const QRect& kept,
                                        const QPoint& offset) {
    return {.anchor = anchor,
            .kept = kept,
            .offset = offset,
            .corner = XDG_POSITIONER_ANCHOR_BOTTOM_LEFT,
            .gravity = XDG_POSITIONER_GRAVITY_BOTTOM_RIGHT,
            .adjustments = XDG_POSITIONER_CONSTRAINT_ADJUSTMENT_FLIP_Y |
                           XDG_POSITIONER_CONSTRAINT_ADJUSTMENT_SLIDE_X |
                           XDG_POSITIONER_CONSTRAINT_ADJUSTMENT_SLIDE_Y};
}

PopupSurface::PopupSurface(wl_surface* surface, PopupParent& parent, const Place& place, Grab grab)
    : surface_(makeShellSurface(surface)) {
    static constexpr xdg_surface_listener surfaceListener{configured};
    xdg_surface_add_listener(surface_, &surfaceListener, this);
    xdg_positioner* positioner = makePositioner(place);
    popup_ = xdg_surface_get_popup(surface_, parent.shellSurface(), positioner);
    xdg_positioner_destroy(positioner);
    xdg_surface_set_window_geometry(surface_, place.kept.x(), place.kept.y(), place.kept.width(),
                                    place.kept.height());
    static constexpr xdg_popup_listener popupListener{placed, dismissed, placedAgain};
    xdg_popup_add_listener(popup_, &popupListener, this);
    if (!parent.shellSurface()) parent.adopt(popup_);
    wl_seat* user = grab == Grab::pointer ? seat() : nullptr;
    if (user) xdg_popup_grab(popup_, user, lastInputSerial());
    wl_surface_commit(surface);
    waitUntilConfigured();
}

PopupSurface::~PopupSurface() {
    xdg_popup_destroy(popup_);
    xdg_surface_destroy(surface_);
    wl_display_flush(display());
}

void PopupSurface::waitUntilConfigured() {
    while (!isConfigured_ && !isDismissed_)
        if (wl_display_dispatch_queue(display(), globals().queue) < 0) return;
    useToolkitQueue(surface_);
    useToolkitQueue(popup_);
    wl_display_dispatch_queue_pending(display(), globals().queue);
}

void PopupSurface::placed(void* data, xdg_popup*, std::int32_t, std::int32_t y, std::int32_t,
                          std::int32_t) {
    static_cast<PopupSurface*>(data)->top_ = y;
}

void PopupSurface::configured(void* data, xdg_surface* surface, std::uint32_t serial) {
    xdg_surface_ack_configure(surface, serial);
    static_cast<PopupSurface*>(data)->isConfigured_ = true;
}

void PopupSurface::dismissed(void* data, xdg_popup*) {
    auto& self = *static_cast<PopupSurface*>(data);
    self.isDismissed_ = true;
    if (self.onDismissed) self.onDismissed();
}

}  // namespace vantle::wayland
