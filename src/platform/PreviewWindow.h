#pragma once

#include "support/Geometry.h"

namespace vantle {

/// The window of the preview: transparent, above all others, as large as the visible part of a
/// screen. It takes clicks only inside its glass. Main thread only.
class PreviewWindow {
public:
    virtual ~PreviewWindow() = default;

    /// Shows the window with this frame, in screen coordinates (as in Screens), and takes the
    /// keyboard.
    virtual void open(const Rect& frame) = 0;

    /// Gives the keyboard back to the window that had it. The window stays on the screen until
    /// what it shows has gone back to its place.
    virtual void giveBackKeyboard() = 0;

    virtual void orderOut() = 0;
};

}  // namespace vantle
