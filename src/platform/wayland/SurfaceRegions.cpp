#include "platform/wayland/SurfaceRegions.h"

#include "platform/wayland/Connection.h"

namespace vantle::wayland {

void setInputRegion(QWindow& window, const QRegion& region) {
    // QWindow::setMask() is no alternative: an empty mask means the whole window.
    wl_surface* target = surface(window);
    if (!target || !globals().compositor) return;
    wl_surface_set_input_region(target, makeRegion(region).get());
    wl_surface_commit(target);
}

bool offersBlur() {
    return globals().blur && globals().compositor;
}

void setBlurBehind(QWindow& window, const QRegion& region) {
    wl_surface* target = surface(window);
    if (!target || !offersBlur()) return;
    if (region.isEmpty()) {
        blur::unset(globals().blur, target);
    } else {
        // The surface keeps the blur after the object is released.
        blur::Blur* request = blur::create(globals().blur, target);
        blur::setRegion(request, makeRegion(region).get());
        blur::commit(request);
        blur::release(request);
    }
    wl_surface_commit(target);
}

}  // namespace vantle::wayland
