#pragma once

#include <filesystem>

#include "support/Result.h"

namespace vantle::updater {

/// Has the system install a package from a file, through PackageKit on the system's message bus,
/// which asks the user for permission in its own way. Returns when that has ended, however long
/// it takes. Honours DBUS_SYSTEM_BUS_ADDRESS.
Outcome installPackage(const std::filesystem::path& package);

}  // namespace vantle::updater
