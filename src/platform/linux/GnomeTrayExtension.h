#pragma once

#include <optional>

#include "platform/TrayExtension.h"
#include "support/Environment.h"

namespace vantle {

/// The extension that brings a tray to the GNOME Shell. Absent on other desktops, also on those
/// that are made of GNOME's parts and have a tray. Looks into the folders of extensions at each
/// call.
std::optional<TrayExtension> gnomeTrayExtension(const Environment& environment);

}  // namespace vantle
