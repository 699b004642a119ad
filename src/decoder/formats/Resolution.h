#pragma once

#include <cmath>

#include "support/Geometry.h"
#include "support/PixelSize.h"

namespace vantle::decoder {

/// Dots an inch; 72 where a file does not say.
struct Resolution {
    double across = 72;
    double down = 72;

    static constexpr double metresInInch = 0.0254;
    static constexpr double centimetresInInch = 2.54;

    /// Dots a unit of length, of which `unitsInInch` make an inch. Files keep rounded numbers of
    /// what was a whole number of dots an inch; numbers without sense count as not said.
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
