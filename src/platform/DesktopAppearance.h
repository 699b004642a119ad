#pragma once

#include <optional>

#include "support/Color.h"
#include "support/Published.h"

namespace vantle {

/// The colour scheme that the desktop requests of programs.
enum class ColorScheme { unknown, light, dark };

/// The look that the user has chosen for programs. The caller decides about what is unknown.
struct DesktopLook {
    ColorScheme scheme = ColorScheme::unknown;
    std::optional<Color> accent;
    bool reducesMotion = false;
    friend bool operator==(const DesktopLook&, const DesktopLook&) = default;
};

/// Reports the look that the desktop requests of programs. Main thread only.
class DesktopAppearance {
public:
    virtual ~DesktopAppearance() = default;

    /// Unknown at first; follows the desktop from then on. Only the backend writes it.
    Published<DesktopLook> look{DesktopLook{}};
};

}  // namespace vantle
