#pragma once

#include <optional>
#include <string>

#include "support/Geometry.h"

namespace vantle {

/// An ordinary window of the program. Closing it only hides it. Main thread only.
class Window {
public:
    virtual ~Window() = default;

    /// Shows the window in front of the others and gives it the keyboard. It appears where it was
    /// when it was hidden, and the first time in the middle of its screen.
    virtual void makeKeyAndOrderFront() = 0;

    /// Shows the window without taking the keyboard from the program that has it. Does nothing if
    /// it is already shown.
    virtual void orderFront() = 0;
    virtual void close() = 0;

    /// Sets the size in points, without the frame that the desktop puts around the window.
    virtual void setContentSize(Size size) = 0;

    /// Returns a PNG of the content, drawn anew with `scale` pixels to a point, whether or not the
    /// window is on the screen; absent if it cannot be drawn.
    virtual std::optional<std::string> snapshot(double scale) = 0;
};

}  // namespace vantle
