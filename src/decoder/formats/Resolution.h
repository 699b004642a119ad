#pragma once

#include <cmath>

#include "support/Geometry.h"
#include "support/PixelSize.h"

namespace vantle::decoder {

/// Dots per inch; 72 if a file does not say.
struct Resolution {
    double across = 72;
    double down = 72;

    static constexpr double metresInInch = 0.0254;
    static constexpr double centimetresInInch = 2.54;

    /// Converts dots per unit of length, with `unitsInInch` units to the inch. Rounds to whole dots
    /// per inch, because files store rounded values of whole numbers. Returns the default if a
    /// value is not sensible.
    static Resolution of(double across, double down, double unitsInInch) {
        const Resolution said{std::round(across * unitsInInch), std::round(down * unitsInInch)};
        return isSensible(said.across) && isSensible(said.down) ? said : Resolution{};
    }

    Size points(PixelSize pixels) const {
        return {pixels.width * 72 / across, pixels.height * 72 / down};
    }

private:
    static bool isSensible(double dots) { return dots >= 1 && dots <= 100'000; }
};

}  // namespace vantle::decoder
