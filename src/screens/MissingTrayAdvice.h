#pragma once

#include <optional>
#include <string>

#include "platform/TrayExtension.h"

namespace vantle {

/// How the user gets a tray for the icon, in a sentence; empty where the desktop has none to offer.
std::string missingTrayAdvice(const std::optional<TrayExtension>& extension);

}  // namespace vantle
