#include "platform/wayland/Protocols.h"

#include <xdg-shell-client-protocol.h>

#include <array>

namespace vantle::wayland {
namespace {

template <typename Object>
wl_proxy* proxy(Object* object) {
    return reinterpret_cast<wl_proxy*>(object);
}

template <typename Object, typename... Arguments>
void request(Object* object, std::uint32_t number, Arguments... arguments) {
    wl_proxy_marshal_flags(proxy(object), number, nullptr, wl_proxy_get_version(proxy(object)), 0,
                           arguments...);
}

template <typename Object>
void destructor(Object* object, std::uint32_t number) {
    wl_proxy_marshal_flags(proxy(object), number, nullptr, wl_proxy_get_version(proxy(object)),
                           WL_MARSHAL_FLAG_DESTROY);
}

/// Sends a request that creates an object. The new object's number is the first argument.
template <typename Made, typename Object, typename... Arguments>
Made* make(Object* object, std::uint32_t number, const wl_interface& interface,
           Arguments... arguments) {
    return reinterpret_cast<Made*>(wl_proxy_marshal_flags(proxy(object), number, &interface,
                                                          wl_proxy_get_version(proxy(object)), 0,
                                                          nullptr, arguments...));
}

// For arguments that are not objects, and for objects of any kind.
std::array<const wl_interface*, 4> noTypes{};

template <typename Object, typename Listener>
void listen(Object* object, const Listener* listener, void* data) {
    wl_proxy_add_listener(proxy(object),
                          reinterpret_cast<void (**)()>(const_cast<Listener*>(listener)), data);
}

}  // namespace

namespace layershell {
namespace {

extern const wl_interface surfaceInterface;

std::array<const wl_interface*, 5> getLayerSurfaceTypes{&surfaceInterface, &wl_surface_interface,
                                                        &wl_output_interface, nullptr, nullptr};

std::array<const wl_interface*, 1> getPopupTypes{&xdg_popup_interface};

constexpr std::array shellRequests{
    wl_message{"get_layer_surface", "no?ous", getLayerSurfaceTypes.data()},
    wl_message{"destroy", "3", noTypes.data()},
};

constexpr std::array surfaceRequests{
    wl_message{"set_size", "uu", noTypes.data()},
    wl_message{"set_anchor", "u", noTypes.data()},
    wl_message{"set_exclusive_zone", "i", noTypes.data()},
    wl_message{"set_margin", "iiii", noTypes.data()},
    wl_message{"set_keyboard_interactivity", "u", noTypes.data()},
    wl_message{"get_popup", "o", getPopupTypes.data()},
    wl_message{"ack_configure", "u", noTypes.data()},
    wl_message{"destroy", "", noTypes.data()},
    wl_message{"set_layer", "2u", noTypes.data()},
};

constexpr std::array surfaceEvents{
    wl_message{"configure", "uuu", noTypes.data()},
    wl_message{"closed", "", noTypes.data()},
};

const wl_interface surfaceInterface{"zwlr_layer_surface_v1", version,
                                    surfaceRequests.size(),  surfaceRequests.data(),
                                    surfaceEvents.size(),    surfaceEvents.data()};

}  // namespace

const wl_interface shellInterface{"zwlr_layer_shell_v1", version, shellRequests.size(),
                                  shellRequests.data(),  0,       nullptr};

Surface* getLayerSurface(Shell* shell, wl_surface* surface, wl_output* output, Layer layer,
                         const char* name) {
    return make<Surface>(shell, 0, surfaceInterface, surface, output,
                         static_cast<std::uint32_t>(layer), name);
}

void setSize(Surface* surface, std::uint32_t width, std::uint32_t height) {
    request(surface, 0, width, height);
}

void setAnchor(Surface* surface, std::uint32_t anchors) {
    request(surface, 1, anchors);
}

void setMargin(Surface* surface, int top, int right, int bottom, int left) {
    request(surface, 3, top, right, bottom, left);
}

void setKeyboardInteractivity(Surface* surface, Keyboard keyboard) {
    request(surface, 4, static_cast<std::uint32_t>(keyboard));
}

void getPopup(Surface* surface, xdg_popup* popup) {
    request(surface, 5, popup);
}

void ackConfigure(Surface* surface, std::uint32_t serial) {
    request(surface, 6, serial);
}

void destroy(Surface* surface) {
    destructor(surface, 7);
}

void addListener(Surface* surface, const Listener* listener, void* data) {
    listen(surface, listener, data);
}

}  // namespace layershell

namespace blur {
namespace {

extern const wl_interface blurInterface;

std::array<const wl_interface*, 2> createTypes{&blurInterface, &wl_surface_interface};
std::array<const wl_interface*, 1> surfaceTypes{&wl_surface_interface};
std::array<const wl_interface*, 1> regionTypes{&wl_region_interface};

constexpr std::array managerRequests{
    wl_message{"create", "no", createTypes.data()},
    wl_message{"unset", "o", surfaceTypes.data()},
};

constexpr std::array blurRequests{
    wl_message{"commit", "", noTypes.data()},
    wl_message{"set_region", "?o", regionTypes.data()},
    wl_message{"release", "", noTypes.data()},
};

const wl_interface blurInterface{"org_kde_kwin_blur", version, blurRequests.size(),
                                 blurRequests.data(), 0,       nullptr};

}  // namespace

const wl_interface managerInterface{"org_kde_kwin_blur_manager", version, managerRequests.size(),
                                    managerRequests.data(),      0,       nullptr};

Blur* create(Manager* manager, wl_surface* surface) {
    return make<Blur>(manager, 0, blurInterface, surface);
}

void unset(Manager* manager, wl_surface* surface) {
    request(manager, 1, surface);
}

void commit(Blur* blur) {
    request(blur, 0);
}

void setRegion(Blur* blur, wl_region* region) {
    request(blur, 1, region);
}

void release(Blur* blur) {
    destructor(blur, 2);
}

}  // namespace blur

namespace datacontrol {
namespace {

extern const wl_interface deviceInterface;
extern const wl_interface sourceInterface;
extern const wl_interface offerInterface;

std::array<const wl_interface*, 1> sourceTypes{&sourceInterface};
std::array<const wl_interface*, 1> offerTypes{&offerInterface};
std::array<const wl_interface*, 2> getDataDeviceTypes{&deviceInterface, &wl_seat_interface};

constexpr std::array managerRequests{
    wl_message{"create_data_source", "n", sourceTypes.data()},
    wl_message{"get_data_device", "no", getDataDeviceTypes.data()},
    wl_message{"destroy", "", noTypes.data()},
};

constexpr std::array deviceRequests{
    wl_message{"set_selection", "?o", sourceTypes.data()},
    wl_message{"destroy", "", noTypes.data()},
};

constexpr std::array deviceEvents{
    wl_message{"data_offer", "n", offerTypes.data()},
    wl_message{"selection", "?o", offerTypes.data()},
    wl_message{"finished", "", noTypes.data()},
};

constexpr std::array sourceRequests{
    wl_message{"offer", "s", noTypes.data()},
    wl_message{"destroy", "", noTypes.data()},
};

constexpr std::array sourceEvents{
    wl_message{"send", "sh", noTypes.data()},
    wl_message{"cancelled", "", noTypes.data()},
};

constexpr std::array offerRequests{
    wl_message{"receive", "sh", noTypes.data()},
    wl_message{"destroy", "", noTypes.data()},
};

constexpr std::array offerEvents{wl_message{"offer", "s", noTypes.data()}};

const wl_interface deviceInterface{"zwlr_data_control_device_v1", version,
                                   deviceRequests.size(),         deviceRequests.data(),
                                   deviceEvents.size(),           deviceEvents.data()};

const wl_interface sourceInterface{"zwlr_data_control_source_v1", version,
                                   sourceRequests.size(),         sourceRequests.data(),
                                   sourceEvents.size(),           sourceEvents.data()};

const wl_interface offerInterface{"zwlr_data_control_offer_v1", version,
                                  offerRequests.size(),         offerRequests.data(),
                                  offerEvents.size(),           offerEvents.data()};

}  // namespace

const wl_interface managerInterface{"zwlr_data_control_manager_v1", version, managerRequests.size(),
                                    managerRequests.data(),         0,       nullptr};

Source* createDataSource(Manager* manager) {
    return make<Source>(manager, 0, sourceInterface);
}

Device* getDataDevice(Manager* manager, wl_seat* seat) {
    return make<Device>(manager, 1, deviceInterface, seat);
}

void setSelection(Device* device, Source* source) {
    request(device, 0, source);
}

void destroy(Device* device) {
    destructor(device, 1);
}

void offer(Source* source, const char* type) {
    request(source, 0, type);
}

void destroy(Source* source) {
    destructor(source, 1);
}

void addListener(Source* source, const SourceListener* listener, void* data) {
    listen(source, listener, data);
}

}  // namespace datacontrol

}  // namespace vantle::wayland
