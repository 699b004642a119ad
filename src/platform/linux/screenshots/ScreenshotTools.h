#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/linux/screenshots/GSettings.h"
#include "platform/linux/screenshots/ScreenshotTool.h"
#include "support/Environment.h"

namespace vantle {

/// The screenshot tool of that name, which is the one of its program; absent when it is not known.
std::optional<ScreenshotTool> makeScreenshotTool(const std::string& name,
                                                 const Environment& environment,
                                                 const std::shared_ptr<GSettings>& settings);

}  // namespace vantle
