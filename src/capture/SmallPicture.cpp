#include "capture/SmallPicture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace vantle {
namespace {

constexpr std::size_t channels = 4;
/// Larger parts are only sampled, because this runs on the main thread.
constexpr std::size_t maximumSamples = 4;  // in each direction
using Sum = std::array<std::uint32_t, channels>;

/// Returns where the part of `length` begins that becomes the pixel at `index` of `count`.
std::size_t begin(int index, int count, int length) {
    return static_cast<std::size_t>(index) * static_cast<std::size_t>(length) /
           static_cast<std::size_t>(count);
}

std::size_t stepOver(std::size_t length) {
    return (length + maximumSamples - 1) / maximumSamples;
}

/// Writes the mean of a part of the image. The part must not be empty.
void writeMean(const Image& image, std::size_t left, std::size_t right, std::size_t top,
               std::size_t bottom, std::uint8_t* pixel) {
    const std::size_t across = stepOver(right - left);
    const std::size_t down = stepOver(bottom - top);
    Sum sum{};
    std::uint32_t count = 0;
    for (std::size_t y = top; y < bottom; y += down) {
        const std::size_t row = y * static_cast<std::size_t>(image.pixelsWide);
        for (std::size_t x = left; x < right; x += across, ++count)
            for (std::size_t i = 0; i < channels; ++i)
                sum[i] += image.rgba[(row + x) * channels + i];
    }
    for (std::size_t i = 0; i < channels; ++i)
        pixel[i] = static_cast<std::uint8_t>((sum[i] + count / 2) / count);
}

}  // namespace

ImagePointer smallPicture(const ImagePointer& image, int pixelsWide, int pixelsHigh) {
    const double scale = std::min(static_cast<double>(pixelsWide) / image->pixelsWide,
                                  static_cast<double>(pixelsHigh) / image->pixelsHigh);
    if (scale >= 1) return image;
    const auto scaled = [scale](int length) {
        return std::max(1, static_cast<int>(std::floor(length * scale)));
    };
    auto small = std::make_shared<Image>();
    small->pixelsWide = scaled(image->pixelsWide);
    small->pixelsHigh = scaled(image->pixelsHigh);
    small->size = image->size;
    small->rgba.resize(static_cast<std::size_t>(small->pixelsWide) *
                       static_cast<std::size_t>(small->pixelsHigh) * channels);
    std::uint8_t* pixel = small->rgba.data();
    for (int y = 0; y < small->pixelsHigh; ++y)
        for (int x = 0; x < small->pixelsWide; ++x, pixel += channels)
            writeMean(*image, begin(x, small->pixelsWide, image->pixelsWide),
                      begin(x + 1, small->pixelsWide, image->pixelsWide),
                      begin(y, small->pixelsHigh, image->pixelsHigh),
                      begin(y + 1, small->pixelsHigh, image->pixelsHigh), pixel);
    return small;
}

}  // namespace vantle
