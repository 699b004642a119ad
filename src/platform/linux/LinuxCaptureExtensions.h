#pragma once

#include <array>

#include "platform/CaptureExtensions.h"

namespace vantle {

namespace linuxcaptures {
inline constexpr std::array<std::string_view, 2> image = {"webp", "avif"};
inline constexpr std::array<std::string_view, 2> video = {"webm", "mkv"};
}  // namespace linuxcaptures

/// What screenshot tools and recorders of Linux write besides what those of every system do.
inline constexpr CaptureExtensions linuxCaptureExtensions{linuxcaptures::image,
                                                          linuxcaptures::video};

}  // namespace vantle
