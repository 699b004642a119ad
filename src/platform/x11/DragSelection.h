#pragma once

#include <QMimeData>
#include <memory>

namespace vantle::x11 {

/// Gives what is dragged to programs on an X server. Qt refuses who asks before the drop, by a time
/// of his own, as programs of GTK 4 do and compositors that pass a drag on to Wayland: they would
/// take the drop, and nothing would arrive. Nothing larger than one request of the protocol can be
/// given. It lives from before the drag to the target's answer. Main thread only.
class DragSelection {
public:
    /// `contents` says the same as the drag's own.
    explicit DragSelection(std::unique_ptr<QMimeData> contents);
    ~DragSelection();

private:
    class Owner;
    std::unique_ptr<Owner> owner_;
};

}  // namespace vantle::x11
