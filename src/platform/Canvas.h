#pragma once

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

/// Draws pictures. Any thread.
class Canvas {
public:
    virtual ~Canvas() = default;

    /// The drawing as the contents of a PNG file, in as many pixels as the densest screen has for
    /// its points.
    virtual Result<std::string> png(const Drawing& drawing) = 0;
};

}  // namespace vantle
