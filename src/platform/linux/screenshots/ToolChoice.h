#pragma once

#include <functional>
#include <string>

namespace vantle {

inline constexpr auto noScreenshotTool = "none";

/// Returns the name of the tool that saves the screenshots of this desktop, or noScreenshotTool.
///
/// The first known name in `currentDesktop` ($XDG_CURRENT_DESKTOP, separated by colons) decides, if
/// that desktop's tool is installed or part of the desktop. Otherwise the result is the first
/// installed tool that belongs to no desktop.
std::string chooseScreenshotTool(
    const std::string& currentDesktop,
    const std::function<bool(const std::string& program)>& isInstalled);

}  // namespace vantle
