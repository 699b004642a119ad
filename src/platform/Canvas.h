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
    /// Draws, and gives the contents of a PNG file. Any thread; the canvas need not be there.
    using Drawer = std::function<Result<std::string>()>;

    virtual ~Canvas() = default;

    /// What makes the drawing, in as many pixels as the densest screen has for its points. Main
    /// thread only: what it takes from the desktop, such as a font, is asked for here.
    virtual Drawer drawer(const Drawing& drawing) = 0;
};

}  // namespace vantle
