#pragma once

#include "platform/Platform.h"
#include "platform/freedesktop/DBusApplication.h"
#include "program/LoadedViews.h"

namespace vantle {

/// The name by which the desktop knows this program.
inline constexpr auto programIdentifier = "org.vantle.Vantle";

/// Makes the services of a Linux desktop. The application object must exist, and it and the views
/// outlive them.
Platform makeLinuxPlatform(DBusApplication::Launch launch, LoadedViews& views);

}  // namespace vantle
