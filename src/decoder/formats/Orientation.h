#pragma once

#include "decoder/reduction/Picture.h"
#include "support/Geometry.h"

namespace vantle::decoder {

/// The change that makes the stored picture upright, with the numbers that Exif uses.
enum class Orientation {
    upright = 1,
    mirrored,
    rotated180,
    flipped,     ///< Mirrored upside down.
    transposed,  ///< Rows and columns change places.
    turnRight,   ///< A quarter turn clockwise.
    transverse,
    turnLeft,
};

/// Returns the orientation with this Exif number; upright for any number that Exif does not have.
constexpr Orientation orientationNumbered(unsigned number) {
    return number >= 1 && number <= 8 ? static_cast<Orientation>(number) : Orientation::upright;
}

/// Returns true if width and height change places.
constexpr bool swapsSides(Orientation orientation) {
    return orientation >= Orientation::transposed;
}

/// Converts the stored picture's size to the upright picture's, or back.
constexpr PixelSize swappedIfTurned(PixelSize size, Orientation orientation) {
    return swapsSides(orientation) ? PixelSize{size.height, size.width} : size;
}

constexpr Size swappedIfTurned(Size size, Orientation orientation) {
    return swapsSides(orientation) ? Size{size.height, size.width} : size;
}

/// Makes the stored picture upright.
Picture upright(Picture picture, Orientation orientation);

}  // namespace vantle::decoder
