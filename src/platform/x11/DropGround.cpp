#include "platform/x11/DropGround.h"

#include <array>

#include "platform/x11/Connection.h"

namespace vantle::x11 {
namespace {

constexpr uint8_t depthWithAlpha = 32;

/// A kind of picture that can be clear; zero where there is none.
xcb_visualid_t clearVisual() {
    const auto screen = xcb_setup_roots_iterator(xcb_get_setup(connection()));
    auto depth = xcb_screen_allowed_depths_iterator(screen.data);
    while (depth.rem > 0 && depth.data->depth != depthWithAlpha) xcb_depth_next(&depth);
    if (depth.rem == 0 || xcb_depth_visuals_length(depth.data) == 0) return 0;
    return xcb_depth_visuals(depth.data)->visual_id;
}

}  // namespace

/// Not one of the toolkit's: those take part in drags themselves.
class DropGround::Window {
public:
    explicit Window(xcb_visualid_t visual)
        : x_(connection()), window_(xcb_generate_id(x_)), colors_(xcb_generate_id(x_)) {
        create(visual);
        sayWhatItIs();
        xcb_map_window(x_, window_);
        // Below the window of a program that draws the desktop's icons.
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
        const xcb_window_t parent = root();
        // What was said at the connection's begin may be another size, of other outputs.
        const auto all = owned(xcb_get_geometry_reply(x_, xcb_get_geometry(x_, parent), nullptr));
        if (!all) return;
        xcb_create_colormap(x_, XCB_COLORMAP_ALLOC_NONE, colors_, parent, visual);
        // Clear, without a border, in colours of its own.
        const std::array<uint32_t, 3> values{0, 0, colors_};
        xcb_create_window(x_, depthWithAlpha, window_, parent, 0, 0, all->width, all->height, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, visual,
                          XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL | XCB_CW_COLORMAP, values.data());
    }

    /// Part of the desktop, so in no list of windows; and it takes no keys.
    void sayWhatItIs() {
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

DropGround::DropGround() {
    if (versionOfMutter().empty()) return;
    // One that could be seen would do more harm than a drag that goes on.
    if (const xcb_visualid_t visual = clearVisual()) window_ = std::make_unique<Window>(visual);
}

DropGround::~DropGround() = default;

}  // namespace vantle::x11
