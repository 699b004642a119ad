#pragma once

#include <memory>

#include "platform/MediaLoader.h"
#include "platform/Platform.h"
#include "platform/qt/DBusApplication.h"

namespace vantle {

/// By what the desktop knows this program.
inline constexpr auto programIdentifier = "org.vantle.Vantle";

/// Draws whole pictures for other programs, whatever the screens.
std::shared_ptr<MediaLoader> makePictureLoader();

/// The services of a Linux desktop. The application object is there and outlives them; `pictures`
/// is what the clipboard converts with.
Platform makeLinuxPlatform(const std::shared_ptr<MediaLoader>& pictures,
                           DBusApplication::Launch launch);

}  // namespace vantle
