#pragma once

#include <QMargins>
#include <QSize>
#include <functional>
#include <memory>

#include "platform/wayland/Connection.h"

namespace vantle::wayland {

/// The role of a surface above all windows at edges of an output, in the part of it that the
/// desktop's own panels leave free. The surface has the keyboard only between takeKeyboard() and
/// giveBackKeyboard(). Main thread only.
class LayerSurface {
public:
    struct Place {
        wl_output* output = nullptr;  ///< Null leaves the choice to the compositor.
        std::uint32_t anchors = layershell::all;
        QMargins margins;  ///< From the anchored edges, in points.
        QSize size{0, 0};  ///< 0 fills the space between two opposite edges.
    };

    /// `surface` must have no role and no contents yet, and must outlive this object. Returns when
    /// the compositor has set the size; from then on the surface may be given contents.
    LayerSurface(wl_surface* surface, const Place& place,
                 layershell::Layer layer = layershell::Layer::overlay);
    ~LayerSurface();
    LayerSurface(const LayerSurface&) = delete;
    LayerSurface& operator=(const LayerSurface&) = delete;

    /// Returns true if the compositor has refused the surface or has closed it.
    bool isRefused() const { return !isConfigured_ || isClosed_; }

    /// Returns the size that the compositor has set; empty if it leaves the size to the program.
    QSize size() const { return size_; }

    /// Moves the surface to `place`, which must be on the same output.
    void move(const Place& place);
    void takeKeyboard() { setKeyboard(layershell::Keyboard::exclusive); }
    void giveBackKeyboard() { setKeyboard(layershell::Keyboard::none); }

    /// Makes `popup`, which must have no contents yet, a child of this surface.
    void adopt(xdg_popup* popup) { layershell::getPopup(role_, popup); }

    /// Called when the compositor closes the surface, for example because its output was removed.
    std::function<void()> onClosed;

private:
    static void configured(void* data, layershell::Surface* role, std::uint32_t serial,
                           std::uint32_t width, std::uint32_t height);
    static void closed(void* data, layershell::Surface* role);
    void waitUntilConfigured();
    void request(const Place& place);
    void setKeyboard(layershell::Keyboard keyboard);

    wl_surface* const surface_;
    layershell::Surface* role_;
    QSize size_;
    bool isConfigured_ = false;
    bool isClosed_ = false;
};

}  // namespace vantle::wayland
