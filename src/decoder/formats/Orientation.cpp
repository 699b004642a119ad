#include "decoder/formats/Orientation.h"

#include <cstddef>
#include <cstring>

namespace vantle::decoder {
namespace {

/// The index of an upright pixel in the stored picture: `origin`, plus a step for each pixel to the
/// right and a step for each pixel down.
struct PixelSteps {
    std::ptrdiff_t origin;
    std::ptrdiff_t across;
    std::ptrdiff_t down;
};

PixelSteps pixelSteps(PixelSize stored, Orientation orientation) {
    const std::ptrdiff_t width = stored.width;
    const std::ptrdiff_t right = width - 1;
    const std::ptrdiff_t bottom = (stored.height - 1) * width;
    switch (orientation) {
        case Orientation::upright:
            break;
        case Orientation::mirrored:
            return {right, -1, width};
        case Orientation::rotated180:
            return {bottom + right, -1, -width};
        case Orientation::flipped:
            return {bottom, 1, -width};
        case Orientation::transposed:
            return {0, width, 1};
        case Orientation::turnRight:
            return {bottom, -width, 1};
        case Orientation::transverse:
            return {bottom + right, -width, -1};
        case Orientation::turnLeft:
            return {right, width, -1};
    }
    return {0, 1, width};
}

}  // namespace

Picture upright(Picture picture, Orientation orientation) {
    if (orientation == Orientation::upright) return picture;
    const auto [origin, across, down] = pixelSteps(picture.size, orientation);
    Picture result{swappedIfTurned(picture.size, orientation),
                   std::vector<std::uint8_t>(picture.rgba.size())};
    std::uint8_t* out = result.rgba.data();
    for (int y = 0; y < result.size.height; ++y)
        for (int x = 0; x < result.size.width; ++x, out += 4)
            std::memcpy(out, picture.rgba.data() + 4 * (origin + x * across + y * down), 4);
    return result;
}

}  // namespace vantle::decoder
