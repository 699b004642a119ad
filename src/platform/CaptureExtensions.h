#pragma once

#include <span>
#include <string_view>

namespace vantle {

/// The file name extensions of captures, in lowercase and without the dot.
struct CaptureExtensions {
    std::span<const std::string_view> image;
    std::span<const std::string_view> video;
};

}  // namespace vantle
