#pragma once

#include <functional>
#include <vector>

#include "capture/Capture.h"

namespace vantle {

/// What can be done with the files of captures outside the panel. An entry that is not given does
/// nothing.
struct FileActions {
    /// Opens the file with its default application.
    std::function<void(const Url&)> open;
    /// Shows the file selected in the file manager.
    std::function<void(const Url&)> reveal;
    /// Puts the captures on the clipboard.
    std::function<void(const std::vector<CapturePointer>&)> copy;
    /// Opens the share menu for the file below the frame `anchor` in the panel's content.
    std::function<void(const CapturePointer&, const Rect& anchor)> share;
    /// Moves the files to the Trash.
    std::function<void(const std::vector<CapturePointer>&)> trash;
};

}  // namespace vantle
