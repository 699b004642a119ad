#include "platform/x11/DropCatcher.h"

#include <array>

#include "platform/x11/Connection.h"

namespace vantle::x11 {
namespace {

constexpr uint8_t depthWithAlpha = 32;

/// Returns a visual with an alpha channel, or 0 if there is none.
xcb_visualid_t clearVisual() {
    const auto screen = xcb_setup_roots_iterator(xcb_get_setup(connection()));
    auto depth = xcb_screen_allowed_depths_iterator(screen.data);
    while (depth.rem > 0 && depth.data->depth != depthWithAlpha) xcb_depth_next(&depth);
    if (depth.rem == 0 || xcb_depth_visuals_length(depth.data) == 0) return 0;
    return xcb_depth_visuals(depth.data)->visual_id;
}

}  // namespace

/// A window made without the toolkit, because the toolkit's windows take part in drags themselves.
class DropCatcher::Window {
public:
    explicit Window(xcb_visualid_t visual)
        : x_(connection()), window_(xcb_generate_id(x_)), colors_(xcb_generate_id(x_)) {
        create(visual);
        setWindowType();
        xcb_map_window(x_, window_);
        // The window must also be below that of a program that draws the desktop's icons.
        const uint32_t below = XCB_STACK_MODE_BELOW;
        xcb_configure_window(x_, window_, XCB_CONFIG_WINDOW_STACK_MODE, &below);
        xcb_flush(x_);
    }

    ~Window() {
        xcb_destroy_window(x_, window_);
        xcb_free_colormap(x_, colors_);
        xcb_flush(x_);
    }

    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

private:
    void create(xcb_visualid_t visual) {
        const xcb_window_t parent = rootWindow();
        // The size that the server gave when the connection began may be outdated: outputs can
        // change.
        const auto all = owned(xcb_get_geometry_reply(x_, xcb_get_geometry(x_, parent), nullptr));
        if (!all) return;
        xcb_create_colormap(x_, XCB_COLORMAP_ALLOC_NONE, colors_, parent, visual);
        // A transparent background and border, and a colour map of its own.
        const std::array<uint32_t, 3> values{0, 0, colors_};
        xcb_create_window(x_, depthWithAlpha, window_, parent, 0, 0, all->width, all->height, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, visual,
                          XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL | XCB_CW_COLORMAP, values.data());
    }

    /// Declares the window a part of the desktop, so that window lists omit it, and refuses
    /// keyboard input.
    void setWindowType() {
        const xcb_atom_t kind = atom("_NET_WM_WINDOW_TYPE_DESKTOP");
        xcb_change_property(x_, XCB_PROP_MODE_REPLACE, window_, atom("_NET_WM_WINDOW_TYPE"),
                            XCB_ATOM_ATOM, 32, 1, &kind);
        constexpr uint32_t saysInput = 1;
        const std::array<uint32_t, 9> hints{saysInput, 0};
        xcb_change_property(x_, XCB_PROP_MODE_REPLACE, window_, XCB_ATOM_WM_HINTS,
                            XCB_ATOM_WM_HINTS, 32, hints.size(), hints.data());
    }

    xcb_connection_t* const x_;
    const xcb_window_t window_;
    const xcb_colormap_t colors_;
};

DropCatcher::DropCatcher() {
    if (versionOfMutter().empty()) return;
    // A visible window would do more harm than a drag that goes on.
    if (const xcb_visualid_t visual = clearVisual()) window_ = std::make_unique<Window>(visual);
}

DropCatcher::~DropCatcher() = default;

}  // namespace vantle::x11
