#pragma once

#include <functional>
#include <optional>
#include <string>

#include "support/Geometry.h"
#include "support/Gradient.h"
#include "support/Result.h"

namespace vantle {

/// A text in the middle of a picture, in bold white letters of the system's font.
struct CenteredText {
    std::string text;
    double fontSize = 0;  ///< Points.
};

/// A picture, as plain data.
struct Drawing {
    Size size;
    LinearGradient background;
    std::optional<CenteredText> text;
};

/// Draws pictures.
class Canvas {
public:
    /// Draws and returns the contents of a PNG file. Any thread may call it, even after the canvas
    /// is destroyed.
    using Drawer = std::function<Result<std::string>()>;

    virtual ~Canvas() = default;

    /// Returns a function that makes the drawing, with as many pixels per point as the densest
    /// screen. Main thread only, because it gets from the desktop what the drawing needs, such as a
    /// font.
    virtual Drawer drawer(const Drawing& drawing) = 0;
};

}  // namespace vantle
