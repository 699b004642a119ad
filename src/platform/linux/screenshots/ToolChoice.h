#pragma once

#include <functional>
#include <string>

namespace vantle {

inline constexpr auto noScreenshotTool = "none";

/// The name of the screenshot tool that saves the screenshots of this desktop, or noScreenshotTool.
///
/// The first name in `currentDesktop` ($XDG_CURRENT_DESKTOP, parted by colons) that is known
/// decides, where the tool of that desktop is installed or a part of it; otherwise the first one
/// installed of those that belong to no desktop.
std::string chooseScreenshotTool(
    const std::string& currentDesktop,
    const std::function<bool(const std::string& program)>& isInstalled);

}  // namespace vantle
