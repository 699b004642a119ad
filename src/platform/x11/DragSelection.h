#pragma once

#include <QMimeData>
#include <memory>

namespace vantle::x11 {

/// Delivers the dragged contents to programs on an X server. Qt refuses programs that request them
/// before the drop with a time of their own, as GTK 4 programs and compositors that pass a drag on
/// to Wayland do: these would accept the drop, but receive nothing. Contents larger than one
/// request of the protocol are refused. Must live from before the drag until the target's answer.
/// Main thread only.
class DragSelection {
public:
    /// `contents` must equal the drag's own contents.
    explicit DragSelection(std::unique_ptr<QMimeData> contents);
    ~DragSelection();

private:
    class Owner;
    std::unique_ptr<Owner> owner_;
};

}  // namespace vantle::x11
