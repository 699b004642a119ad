#pragma once

#include <memory>

namespace vantle::x11 {

/// A window that nobody sees below all others, while something is dragged. Mutter 48 tells nobody
/// of a release over no window at all, where the drag goes through its XWayland: the drag would go
/// on until the next click. Mutter 43 does, and is not hurt by it; what is no Mutter gets none.
/// Over the shell's own bar the release arrives when the pointer leaves it. Main thread only.
class DropGround {
public:
    DropGround();
    ~DropGround();

private:
    class Window;
    std::unique_ptr<Window> window_;
};

}  // namespace vantle::x11
