#include "platform/wayland/Outputs.h"

#include <sys/mman.h>
#include <unistd.h>

#include <QGuiApplication>
#include <algorithm>

#include "platform/wayland/LayerSurface.h"
#include "support/FileDescriptor.h"

namespace vantle::wayland {
namespace {

struct SurfaceDeleter {
    void operator()(wl_surface* surface) const { wl_surface_destroy(surface); }
};
struct BufferDeleter {
    void operator()(wl_buffer* buffer) const { wl_buffer_destroy(buffer); }
};

using OwnSurface = std::unique_ptr<wl_surface, SurfaceDeleter>;
using OwnBuffer = std::unique_ptr<wl_buffer, BufferDeleter>;

OwnSurface makeSurface() {
    return OwnSurface(wl_compositor_create_surface(globals().compositor));
}

/// Of one pixel through which everything shines.
OwnBuffer makeEmptyBuffer() {
    constexpr int bytes = 4;
    const FileDescriptor file(memfd_create("vantle pixel", MFD_CLOEXEC));
    if (file.get() < 0 || ftruncate(file.get(), bytes) != 0) return nullptr;
    wl_shm_pool* pool = wl_shm_create_pool(globals().sharedMemory, file.get(), bytes);
    OwnBuffer buffer(wl_shm_pool_create_buffer(pool, 0, 1, 1, bytes, WL_SHM_FORMAT_ARGB8888));
    wl_shm_pool_destroy(pool);
    return buffer;
}

void enter(void* data, wl_surface*, wl_output* entered) {
    *static_cast<wl_output**>(data) = entered;
}

void leave(void*, wl_surface*, wl_output*) {}

constexpr wl_surface_listener surfaceListener{enter, leave};

/// Where the compositor puts a surface for which nobody names an output.
wl_output* chosenOutput() {
    constexpr int turns = 3;  // of question and answer, for compositors that answer later
    wl_output* chosen = nullptr;
    const OwnBuffer buffer = makeEmptyBuffer();
    const OwnSurface surface = makeSurface();
    wl_surface_add_listener(surface.get(), &surfaceListener, &chosen);
    wl_surface_set_input_region(surface.get(), makeRegion({}).get());
    const LayerSurface role(surface.get(),
                            {.anchors = layershell::top | layershell::left, .size = {1, 1}});
    if (!buffer || role.size().isEmpty()) return nullptr;
    wl_surface_attach(surface.get(), buffer.get(), 0, 0);
    wl_surface_commit(surface.get());
    for (int turn = 0; turn < turns && !chosen; ++turn)
        if (wl_display_roundtrip_queue(display(), globals().queue) < 0) break;
    return chosen;
}

}  // namespace

QRect usableArea(QScreen& screen) {
    const QRect whole = screen.availableGeometry();
    wl_output* place = offersLayers() ? output(screen) : nullptr;
    if (!place) return whole;
    const OwnSurface surface = makeSurface();
    const LayerSurface role(surface.get(), {.output = place});
    return role.size().isEmpty() ? whole : QRect(whole.topLeft(), role.size());
}

QScreen* focusedScreen() {
    const auto screens = QGuiApplication::screens();
    if (screens.size() < 2 || !offersLayers() || !globals().sharedMemory) return nullptr;
    wl_output* chosen = chosenOutput();
    const auto found = std::ranges::find_if(
        screens, [chosen](QScreen* screen) { return output(*screen) == chosen; });
    return chosen && found != screens.end() ? *found : nullptr;
}

}  // namespace vantle::wayland
