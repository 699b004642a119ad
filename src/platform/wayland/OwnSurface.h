#pragma once

#include <memory>

#include "platform/wayland/Connection.h"

namespace vantle::wayland {

struct SurfaceDeleter {
    void operator()(wl_surface* surface) const { wl_surface_destroy(surface); }
};
struct BufferDeleter {
    void operator()(wl_buffer* buffer) const { wl_buffer_destroy(buffer); }
};

/// A surface that the toolkit knows nothing of. Its events arrive in the queue of globals().
using OwnSurface = std::unique_ptr<wl_surface, SurfaceDeleter>;
OwnSurface makeSurface();

/// One pixel through which everything shines; null when it cannot be made.
using OwnBuffer = std::unique_ptr<wl_buffer, BufferDeleter>;
OwnBuffer makeEmptyBuffer();

/// Shows it; clicks fall through. It has a role by now.
void show(wl_surface* surface, wl_buffer* buffer);

}  // namespace vantle::wayland
