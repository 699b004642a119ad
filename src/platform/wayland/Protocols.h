#pragma once

#include <wayland-client.h>

#include <cstdint>

struct xdg_popup;

/// The protocols of compositors for which no package provides C++ code: thin functions for their
/// requests, and their events. Names and numbers are the protocols' own; `version` is the highest
/// version that is supported here.
namespace vantle::wayland {

/// wlr-layer-shell: surfaces above or below the ordinary windows, at edges of an output.
namespace layershell {

struct Shell;
struct Surface;

extern const wl_interface shellInterface;
inline constexpr std::uint32_t version = 4;

enum class Layer : std::uint32_t { top = 2, overlay = 3 };
enum Anchor : std::uint32_t { top = 1, bottom = 2, left = 4, right = 8, all = 15 };
enum class Keyboard : std::uint32_t { none = 0, exclusive = 1 };

/// The protocol's requests, in its order.
Surface* getLayerSurface(Shell* shell, wl_surface* surface, wl_output* output, Layer layer,
                         const char* name);
void setSize(Surface* surface, std::uint32_t width, std::uint32_t height);
void setAnchor(Surface* surface, std::uint32_t anchors);
void setMargin(Surface* surface, int top, int right, int bottom, int left);
void setKeyboardInteractivity(Surface* surface, Keyboard keyboard);
void getPopup(Surface* surface, xdg_popup* popup);
void ackConfigure(Surface* surface, std::uint32_t serial);
void destroy(Surface* surface);

struct Listener {
    void (*configure)(void* data, Surface* surface, std::uint32_t serial, std::uint32_t width,
                      std::uint32_t height);
    void (*closed)(void* data, Surface* surface);
};

void addListener(Surface* surface, const Listener* listener, void* data);

}  // namespace layershell

/// KDE's protocol that blurs what is behind a part of a surface.
namespace blur {

struct Manager;
struct Blur;

extern const wl_interface managerInterface;
inline constexpr std::uint32_t version = 1;

Blur* create(Manager* manager, wl_surface* surface);
void unset(Manager* manager, wl_surface* surface);
void commit(Blur* blur);
void setRegion(Blur* blur, wl_region* region);
void release(Blur* blur);

}  // namespace blur

/// wlr-data-control: the clipboard, also for programs without a recent click or key press. Only the
/// requests that offer contents are declared here.
namespace datacontrol {

struct Manager;
struct Device;
struct Source;

extern const wl_interface managerInterface;
inline constexpr std::uint32_t version = 1;

Source* createDataSource(Manager* manager);
Device* getDataDevice(Manager* manager, wl_seat* seat);
void setSelection(Device* device, Source* source);
void destroy(Device* device);
void offer(Source* source, const char* type);
void destroy(Source* source);

struct SourceListener {
    /// The receiver must close `pipe`.
    void (*send)(void* data, Source* source, const char* type, std::int32_t pipe);
    void (*cancelled)(void* data, Source* source);
};

void addListener(Source* source, const SourceListener* listener, void* data);

}  // namespace datacontrol

}  // namespace vantle::wayland
