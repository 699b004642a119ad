#pragma once

#include <optional>
#include <string>

#include "platform/TrayExtension.h"

namespace vantle {

/// Returns a sentence that says how to get a tray for the icon; empty if the desktop offers none.
std::string missingTrayAdvice(const std::optional<TrayExtension>& extension);

}  // namespace vantle
