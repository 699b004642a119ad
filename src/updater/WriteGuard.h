#pragma once

#include <filesystem>

namespace vantle::updater {

/// Restricts this process, and the processes that it starts, to changing files beneath `folder`
/// (Landlock). This is permanent. Returns false if the system does not support it; then only the
/// checks of every path protect other files.
bool writeOnlyBeneath(const std::filesystem::path& folder);

}  // namespace vantle::updater
