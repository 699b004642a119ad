#pragma once

#include <functional>
#include <string>
#include <vector>

#include "capture/Capture.h"
#include "support/Geometry.h"

namespace vantle {

/// A file that a drag carries.
struct DragItem {
    Url url;
    ImagePointer image;  ///< Null if the capture has no picture.
};

/// A request for a menu.
struct MenuRequest {
    enum class By { pointer, keyboard };

    Rect anchor;  ///< What the menu points to, in the panel's content.
    By by = By::pointer;
};

/// The callbacks through which the card requests actions. All are always set. Each holds the
/// controller weakly.
struct CardActions {
    using OnCapture = std::function<void(const CapturePointer&)>;
    using OnPanel = std::function<void()>;

    OnCapture close;
    OnPanel closeAll;
    OnCapture open;
    OnCapture copy;
    OnCapture reveal;
    /// `anchor` is the frame of the button to which the share menu points, in the panel's content.
    std::function<void(const CapturePointer&, const Rect& anchor)> share;
    OnCapture trash;
    OnCapture toggleSelect;
    OnCapture togglePin;
    OnPanel clearSelection;
    /// Returns the items of a drag that starts on that capture.
    std::function<std::vector<DragItem>(const CapturePointer&)> dragItems;
    OnPanel dragBegan;
    /// `completed` is true if the other program took the files; `urls` are the files that were
    /// dragged.
    std::function<void(bool completed, const std::vector<Url>& urls)> dragEnded;
    OnPanel copySelected;
    OnPanel trashSelected;
    OnPanel removeSelected;
    /// Brings back what left the card last, or undoes the latest move to the Trash if that is
    /// newer.
    OnPanel undo;
    /// Shows the capture large.
    OnCapture preview;
    OnPanel selectAll;
    OnPanel settings;
    std::function<void(const Rect& anchor)> shareSelected;
    OnPanel revealSelected;
    std::function<void(const std::vector<CapturePointer>&)> copyPaths;
    /// Returns true if the text in the capture's picture can be copied on this system.
    std::function<bool(const CapturePointer&)> canCopyText;
    /// Begins to copy the text of one page (from 0) to the clipboard.
    std::function<void(const CapturePointer&, int page)> copyText;
    OnCapture stopCopyingText;
    /// Opens the captures with a program that OpenWith has found.
    std::function<void(const std::vector<CapturePointer>&, const std::string& program)> openWith;
    /// Lets the user choose a program in a dialog of the desktop.
    OnCapture openWithOther;
    OnCapture beginRenaming;
    /// Gives the file of the capture that is being renamed this name, without its extension.
    std::function<void(const std::string& name)> finishRenaming;
    OnPanel cancelRenaming;
    std::function<void(const CapturePointer&, const MenuRequest&)> captureMenu;
    std::function<void(const MenuRequest&)> backgroundMenu;
    /// Brings the files of a capture and of those that were trashed with it back from the Trash.
    std::function<void(const UUID& captureID)> undoTrash;
};

}  // namespace vantle
