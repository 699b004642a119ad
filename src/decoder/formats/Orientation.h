#pragma once

#include "decoder/reduction/Picture.h"
#include "support/Geometry.h"

namespace vantle::decoder {

/// What has to be done to the stored picture to see it upright; the numbers are those of Exif.
enum class Orientation {
    upright = 1,
    mirrored,
    turnedAround,
    flipped,     ///< Upside down, by a mirror.
    transposed,  ///< Rows are columns.
    turnRight,   ///< By a quarter, as a clock turns.
    transposedAround,
    turnLeft,
};

/// The orientation of that number; upright for any other.
constexpr Orientation orientationNumbered(unsigned number) {
    return number >= 1 && number <= 8 ? static_cast<Orientation>(number) : Orientation::upright;
}

/// Whether width and height change places.
constexpr bool swapsSides(Orientation orientation) {
    return orientation >= Orientation::transposed;
}

/// From the stored picture's size to that of the upright one, and back.
constexpr PixelSize turned(PixelSize size, Orientation orientation) {
    return swapsSides(orientation) ? PixelSize{size.height, size.width} : size;
}

constexpr Size turned(Size size, Orientation orientation) {
    return swapsSides(orientation) ? Size{size.height, size.width} : size;
}

/// The stored picture made upright.
Picture turned(Picture picture, Orientation orientation);

}  // namespace vantle::decoder
