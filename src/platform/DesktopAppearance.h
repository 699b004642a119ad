#pragma once

#include <optional>

#include "support/Color.h"
#include "support/Published.h"

namespace vantle {

/// Whether the desktop asks programs to be light or dark.
enum class ColorScheme { unknown, light, dark };

/// How the user wants programs to look; what is not known is left to the caller.
struct DesktopLook {
    ColorScheme scheme = ColorScheme::unknown;
    std::optional<Color> accent;
    bool reducesMotion = false;
    friend bool operator==(const DesktopLook&, const DesktopLook&) = default;
};

/// What the desktop tells about how programs shall look. Main thread only.
class DesktopAppearance {
public:
    virtual ~DesktopAppearance() = default;

    /// Nothing known at first; follows the desktop from then on. Only the backend writes it.
    Published<DesktopLook> look{DesktopLook{}};
};

}  // namespace vantle
