#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/linux/screenshots/GSettings.h"
#include "platform/linux/screenshots/ScreenshotTool.h"
#include "support/Environment.h"

namespace vantle {

/// Returns the description of a screenshot tool, named like its program; nothing if it is unknown.
std::optional<ScreenshotTool> makeScreenshotTool(const std::string& name,
                                                 const Environment& environment,
                                                 const std::shared_ptr<GSettings>& settings);

}  // namespace vantle
