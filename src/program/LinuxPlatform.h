#pragma once

#include "platform/Platform.h"
#include "platform/qt/DBusApplication.h"

namespace vantle {

/// By what the desktop knows this program.
inline constexpr auto programIdentifier = "org.vantle.Vantle";

/// The services of a Linux desktop. The application object is there and outlives them.
Platform makeLinuxPlatform(DBusApplication::Launch launch);

}  // namespace vantle
