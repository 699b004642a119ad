#pragma once

#include <QMimeData>
#include <memory>

namespace vantle {

/// Gives what is dragged to native programs of a Wayland session that is reached through XWayland.
/// Some compositors ask for it as soon as the drag begins, and by a time of their own, which Qt
/// refuses: the drop would be taken and nothing arrive. It lives from before the drag to the
/// target's answer. Main thread only.
class DragSelection {
public:
    /// On a plain X server it is not.
    static bool isNeeded();

    /// `contents` says the same as the drag's own.
    explicit DragSelection(std::unique_ptr<QMimeData> contents);
    ~DragSelection();

private:
    class Owner;
    std::unique_ptr<Owner> owner_;
};

}  // namespace vantle
