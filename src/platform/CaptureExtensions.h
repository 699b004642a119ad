#pragma once

#include <span>
#include <string_view>

namespace vantle {

/// Extensions that make a file's name that of a capture: in lowercase, without the dot.
struct CaptureExtensions {
    std::span<const std::string_view> image;
    std::span<const std::string_view> video;
};

}  // namespace vantle
