#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace vantle::decoder {

constexpr std::uint8_t multipliedByAlpha(std::uint8_t color, std::uint8_t alpha) {
    return static_cast<std::uint8_t>((color * alpha + 127) / 255);
}

constexpr std::uint8_t dividedByAlpha(std::uint8_t color, std::uint8_t alpha) {
    if (alpha == 0) return 0;
    return static_cast<std::uint8_t>((color * 255 + alpha / 2) / alpha);
}

/// Returns true if all pixels of these rows are opaque.
constexpr bool isOpaque(std::span<const std::uint8_t> rgba) {
    for (std::size_t i = 3; i < rgba.size(); i += 4)
        if (rgba[i] != 255) return false;
    return true;
}

/// Applies `change` to each colour and its pixel's alpha.
constexpr void changeColors(std::span<std::uint8_t> rgba,
                            std::uint8_t (*change)(std::uint8_t color, std::uint8_t alpha)) {
    for (std::size_t i = 0; i < rgba.size(); i += 4)
        for (std::size_t channel = 0; channel < 3; ++channel)
            rgba[i + channel] = change(rgba[i + channel], rgba[i + 3]);
}

}  // namespace vantle::decoder
