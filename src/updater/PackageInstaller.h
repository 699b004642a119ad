#pragma once

#include <filesystem>

#include "support/Result.h"

namespace vantle::updater {

/// Has PackageKit install a package from a file, over the system's message bus; PackageKit asks the
/// user for permission in its own way. Returns when the installation has ended, however long it
/// takes. Honours DBUS_SYSTEM_BUS_ADDRESS.
Outcome installPackage(const std::filesystem::path& package);

}  // namespace vantle::updater
