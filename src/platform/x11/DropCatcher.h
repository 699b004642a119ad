#pragma once

#include <memory>

namespace vantle::x11 {

/// An invisible window below all others while something is dragged. If the drag goes through Mutter
/// 48's XWayland, Mutter does not report a release over no window at all, and the drag would go on
/// until the next click. Mutter 43 reports it, and the window does no harm there; without Mutter no
/// window is created. A release over the shell's own bar arrives when the pointer leaves the bar.
/// Main thread only.
class DropCatcher {
public:
    DropCatcher();
    ~DropCatcher();

private:
    class Window;
    std::unique_ptr<Window> window_;
};

}  // namespace vantle::x11
