#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace vantle::decoder {

/// The formats that can be opened. Each has a module of its own, which is loaded alone.
enum class Format : std::uint32_t { png, jpeg, gif, tiff, heic, webp, pdf, recording };

constexpr std::array<std::string_view, 8> formatNames = {"png",  "jpeg", "gif", "tiff",
                                                         "heic", "webp", "pdf", "recording"};

constexpr std::string_view name(Format format) {
    return formatNames[static_cast<std::size_t>(format)];
}

constexpr std::optional<Format> formatNamed(std::string_view text) {
    for (std::size_t i = 0; i < formatNames.size(); ++i)
        if (formatNames[i] == text) return static_cast<Format>(i);
    return std::nullopt;
}

}  // namespace vantle::decoder
