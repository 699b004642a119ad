#include "platform/wayland/SurfacePointer.h"

#include <sys/mman.h>
#include <unistd.h>

#include <QRegion>

#include "support/FileDescriptor.h"

namespace vantle::wayland {

SurfacePointer makeSurface() {
    return SurfacePointer(wl_compositor_create_surface(globals().compositor));
}

BufferPointer makeEmptyBuffer() {
    constexpr int bytes = 4;
    const FileDescriptor file(memfd_create("vantle pixel", MFD_CLOEXEC));
    if (file.get() < 0 || ftruncate(file.get(), bytes) != 0) return nullptr;
    wl_shm_pool* pool = wl_shm_create_pool(globals().sharedMemory, file.get(), bytes);
    BufferPointer buffer(wl_shm_pool_create_buffer(pool, 0, 1, 1, bytes, WL_SHM_FORMAT_ARGB8888));
    wl_shm_pool_destroy(pool);
    return buffer;
}

void show(wl_surface* surface, wl_buffer* buffer) {
    wl_surface_set_input_region(surface, makeRegion({}).get());
    wl_surface_attach(surface, buffer, 0, 0);
    wl_surface_commit(surface);
}

}  // namespace vantle::wayland
