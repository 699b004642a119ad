#pragma once

#include <QMargins>
#include <QSize>
#include <functional>
#include <memory>

#include "platform/wayland/Connection.h"

namespace vantle::wayland {

/// The role of a surface that stands above all windows, at edges of an output, in the part of it
/// that the desktop's own panels leave free. It takes the keyboard only when it is told to. Main
/// thread only.
class LayerSurface {
public:
    struct Place {
        wl_output* output = nullptr;  ///< Null leaves the choice to the compositor.
        std::uint32_t anchors = layershell::all;
        QMargins margins;  ///< From the edges to which it is anchored, in points.
        QSize size{0, 0};  ///< 0 fills it between two edges to which it is anchored.
    };

    /// `surface` has no role and no contents yet, and outlives this. Returns once the compositor
    /// has said how large it is: now it may be given contents.
    LayerSurface(wl_surface* surface, const Place& place,
                 layershell::Layer layer = layershell::Layer::overlay);
    ~LayerSurface();
    LayerSurface(const LayerSurface&) = delete;
    LayerSurface& operator=(const LayerSurface&) = delete;

    /// Whether the compositor has not taken it, or has taken it away.
    bool isRefused() const { return !isConfigured_ || isClosed_; }

    /// As the compositor has set it; empty where it leaves that to the program.
    QSize size() const { return size_; }

    /// On the same output.
    void move(const Place& place);
    void takeKeyboard() { setKeyboard(layershell::Keyboard::exclusive); }
    void giveBackKeyboard() { setKeyboard(layershell::Keyboard::none); }

    /// Makes the popup stand above this one. It has no contents yet.
    void adopt(xdg_popup* popup) { layershell::getPopup(role_, popup); }

    /// Called when the compositor takes it away, as when its output has gone.
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
