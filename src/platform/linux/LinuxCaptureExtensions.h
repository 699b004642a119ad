#pragma once

#include "filetypes/FileTypes.h"
#include "platform/CaptureExtensions.h"

namespace vantle {

namespace linuxcaptures {
inline constexpr auto image = extensionsOf<CaptureKind::image, FileType::Origin::linuxTools>();
inline constexpr auto video = extensionsOf<CaptureKind::video, FileType::Origin::linuxTools>();
}  // namespace linuxcaptures

/// The file types that only screenshot tools and recorders of Linux write.
inline constexpr CaptureExtensions linuxCaptureExtensions{linuxcaptures::image,
                                                          linuxcaptures::video};

}  // namespace vantle
