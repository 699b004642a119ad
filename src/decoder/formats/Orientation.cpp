#include "decoder/formats/Orientation.h"

#include <cstddef>
#include <cstring>

namespace vantle::decoder {
namespace {

/// Where in the stored picture an upright pixel comes from: `origin`, and a step for each pixel to
/// the right and each one down.
struct Walk {
    std::ptrdiff_t origin;
    std::ptrdiff_t across;
    std::ptrdiff_t down;
};

Walk walk(PixelSize stored, Orientation orientation) {
    const std::ptrdiff_t wide = stored.wide;
    const std::ptrdiff_t right = wide - 1;
    const std::ptrdiff_t bottom = (stored.high - 1) * wide;
    switch (orientation) {
        case Orientation::upright:
            break;
        case Orientation::mirrored:
            return {right, -1, wide};
        case Orientation::turnedAround:
            return {bottom + right, -1, -wide};
        case Orientation::flipped:
            return {bottom, 1, -wide};
        case Orientation::transposed:
            return {0, wide, 1};
        case Orientation::turnRight:
            return {bottom, -wide, 1};
        case Orientation::transposedAround:
            return {bottom + right, -wide, -1};
        case Orientation::turnLeft:
            return {right, wide, -1};
    }
    return {0, 1, wide};
}

}  // namespace

Picture turned(Picture picture, Orientation orientation) {
    if (orientation == Orientation::upright) return picture;
    const auto [origin, across, down] = walk(picture.size, orientation);
    Picture upright{turned(picture.size, orientation),
                    std::vector<std::uint8_t>(picture.rgba.size())};
    std::uint8_t* out = upright.rgba.data();
    for (int y = 0; y < upright.size.high; ++y)
        for (int x = 0; x < upright.size.wide; ++x, out += 4)
            std::memcpy(out, picture.rgba.data() + 4 * (origin + x * across + y * down), 4);
    return upright;
}

}  // namespace vantle::decoder
