#pragma once

#include "platform/Platform.h"
#include "platform/freedesktop/DBusApplication.h"
#include "program/LoadedViews.h"

namespace vantle {

/// By what the desktop knows this program.
inline constexpr auto programIdentifier = "org.vantle.Vantle";

/// The services of a Linux desktop. The application object is there and outlives them, as do the
/// views.
Platform makeLinuxPlatform(DBusApplication::Launch launch, LoadedViews& views);

}  // namespace vantle
