#pragma once

#include <cmath>

#include "support/Geometry.h"
#include "support/PixelSize.h"

namespace vantle::decoder {

/// Dots per inch; 72 if a file does not say.
struct Resolution {
    double across = 72;
    double down = 72;

    static constexpr double metresPerInch = 0.0254;
    static constexpr double centimetresPerInch = 2.54;

    /// Converts dots per unit of length, with `unitsPerInch` units to the inch. Rounds to whole
    /// dots per inch, because files store rounded values of whole numbers. Returns the default if a
    /// value is not sensible.
    static Resolution of(double across, double down, double unitsPerInch) {
        const Resolution rounded{std::round(across * unitsPerInch),
                                 std::round(down * unitsPerInch)};
        return isSensible(rounded.across) && isSensible(rounded.down) ? rounded : Resolution{};
    }

    Size points(PixelSize pixels) const {
        return {pixels.width * 72 / across, pixels.height * 72 / down};
    }

private:
    static bool isSensible(double dots) { return dots >= 1 && dots <= 100'000; }
};

}  // namespace vantle::decoder
