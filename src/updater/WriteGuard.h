#pragma once

#include <filesystem>

namespace vantle::updater {

/// From now on this process can change files only beneath `folder` (Landlock). For good, and also
/// for what it starts. False where the system has no such guard; then the checks of every path are
/// all there is.
bool writeOnlyBeneath(const std::filesystem::path& folder);

}  // namespace vantle::updater
