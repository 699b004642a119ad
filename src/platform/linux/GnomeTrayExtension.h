#pragma once

#include <optional>

#include "platform/TrayExtension.h"
#include "support/Environment.h"

namespace vantle {

/// Returns the extension that adds a tray to the GNOME Shell. Returns nothing on other desktops,
/// including those that are built from GNOME's parts and have a tray. Reads the folders of
/// extensions at each call.
std::optional<TrayExtension> gnomeTrayExtension(const Environment& environment);

}  // namespace vantle
