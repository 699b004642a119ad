#pragma once

#include <optional>
#include <string>

#include "support/Geometry.h"

namespace vantle {

/// An ordinary window of the program. Closing it only hides it. Main thread only.
class Window {
public:
    virtual ~Window() = default;

    /// Shows it in front of the others and with the keyboard: where it stood when it was hidden,
    /// and the first time in the middle of its screen.
    virtual void makeKeyAndOrderFront() = 0;

    /// Shows it without taking the keyboard from the program that has it; does nothing when it is
    /// shown already.
    virtual void orderFront() = 0;
    virtual void close() = 0;

    /// In points, without the frame that the desktop puts around it.
    virtual void setContentSize(Size size) = 0;

    /// A PNG of its content, drawn anew with `scale` pixels to a point, whether or not it is on the
    /// screen; absent when it cannot be drawn.
    virtual std::optional<std::string> snapshot(double scale) = 0;
};

}  // namespace vantle
