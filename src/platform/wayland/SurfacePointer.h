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

/// A surface that does not belong to the toolkit. Its events arrive in the queue of globals().
using SurfacePointer = std::unique_ptr<wl_surface, SurfaceDeleter>;
SurfacePointer makeSurface();

/// Returns a buffer with one transparent pixel, or null if it cannot be created.
using BufferPointer = std::unique_ptr<wl_buffer, BufferDeleter>;
BufferPointer makeEmptyBuffer();

/// Shows `buffer` on `surface`, which must have a role. Clicks fall through the surface.
void show(wl_surface* surface, wl_buffer* buffer);

}  // namespace vantle::wayland
