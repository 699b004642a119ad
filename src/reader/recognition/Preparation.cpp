#include "reader/recognition/Preparation.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <utility>

namespace vantle::reader {
namespace {

constexpr double maximumFactor = 2;

// A picture of a dense screen has large letters already, and enlarging it would take long.
constexpr double enlargedPixels = 16e6;

// The recognizer refuses longer sides.
constexpr double longestSide = 32'000;

/// Returns how much to enlarge a picture of this size.
double factorFor(PixelSize size) {
    const double bySize = std::sqrt(enlargedPixels / size.width / size.height);
    const double bySide = longestSide / std::max(size.width, size.height);
    return std::clamp(std::min(bySize, bySide), 1.0, maximumFactor);
}

GrayPicture gray(std::span<const std::uint8_t> rgba, PixelSize size) {
    GrayPicture picture{size, {}};
    picture.pixels.reserve(rgba.size() / 4);
    for (std::size_t i = 0; i + 3 < rgba.size(); i += 4) {
        // The usual weights of brightness, in 1/256.
        const unsigned colored = 77U * rgba[i] + 150U * rgba[i + 1] + 29U * rgba[i + 2];
        const unsigned white = 255U - rgba[i + 3];
        picture.pixels.push_back(static_cast<std::uint8_t>(std::min(255U, colored / 256 + white)));
    }
    return picture;
}

/// How one pixel of a line is made of four of the original line.
struct Taps {
    std::array<std::size_t, 4> places;
    std::array<float, 4> weights;
};

/// The weight of a pixel at a distance, for cubic interpolation.
double weightAt(double distance) {
    const double x = std::abs(distance);
    if (x >= 2) return 0;
    return x < 1 ? (1.5 * x - 2.5) * x * x + 1 : ((-0.5 * x + 2.5) * x - 4) * x + 2;
}

std::vector<Taps> taps(int from, int to) {
    std::vector<Taps> all(static_cast<std::size_t>(to));
    for (int i = 0; i < to; ++i) {
        const double place = (i + 0.5) * from / to - 0.5;
        const int first = static_cast<int>(std::floor(place)) - 1;
        auto& [places, weights] = all[static_cast<std::size_t>(i)];
        for (int k = 0; k < 4; ++k) {
            const auto tap = static_cast<std::size_t>(k);
            places[tap] = static_cast<std::size_t>(std::clamp(first + k, 0, from - 1));
            weights[tap] = static_cast<float>(weightAt(place - (first + k)));
        }
    }
    return all;
}

std::uint8_t mixed(const std::array<float, 4>& weights, int first, int second, int third,
                   int fourth) {
    const float sum =
        weights[0] * static_cast<float>(first) + weights[1] * static_cast<float>(second) +
        weights[2] * static_cast<float>(third) + weights[3] * static_cast<float>(fourth);
    return static_cast<std::uint8_t>(std::clamp(sum + 0.5F, 0.0F, 255.0F));
}

GrayPicture emptyPicture(PixelSize size) {
    const auto count = static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height);
    return {size, std::vector<std::uint8_t>(count)};
}

GrayPicture widened(const GrayPicture& picture, int width) {
    const auto columns = taps(picture.size.width, width);
    GrayPicture wide = emptyPicture({width, picture.size.height});
    const std::uint8_t* line = picture.pixels.data();
    std::uint8_t* pixel = wide.pixels.data();
    for (int y = 0; y < picture.size.height; ++y, line += picture.size.width)
        for (const auto& [places, weights] : columns)
            *pixel++ =
                mixed(weights, line[places[0]], line[places[1]], line[places[2]], line[places[3]]);
    return wide;
}

GrayPicture heightened(const GrayPicture& picture, int height) {
    const auto width = static_cast<std::size_t>(picture.size.width);
    GrayPicture high = emptyPicture({picture.size.width, height});
    std::uint8_t* line = high.pixels.data();
    for (const auto& [places, weights] : taps(picture.size.height, height)) {
        const auto original = [&picture, width](std::size_t y) {
            return picture.pixels.data() + y * width;
        };
        const std::array lines{original(places[0]), original(places[1]), original(places[2]),
                               original(places[3])};
        for (std::size_t x = 0; x < width; ++x)
            line[x] = mixed(weights, lines[0][x], lines[1][x], lines[2][x], lines[3][x]);
        line += width;
    }
    return high;
}

}  // namespace

GrayPicture prepared(std::span<const std::uint8_t> rgba, PixelSize size) {
    GrayPicture picture = gray(rgba, size);
    const double factor = factorFor(size);
    const PixelSize target{static_cast<int>(size.width * factor),
                           static_cast<int>(size.height * factor)};
    if (target == size) return picture;
    return heightened(widened(picture, target.width), target.height);
}

}  // namespace vantle::reader
