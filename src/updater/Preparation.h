#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "support/Result.h"
#include "updater/Staging.h"

namespace vantle::updater {

/// Fails unless the tree can be replaced: it must contain only its own files, and the file system
/// must be able to replace it in one step. Removes what an earlier attempt has left.
Outcome checkPlace(const std::filesystem::path& tree, const Staging& staging);

/// Unpacks a release, verifies that it is this version for this system, and makes it
/// `staging.next()`. Whenever this process ends, `staging.next()` is either a whole tree or does
/// not exist.
Outcome makeNext(const Staging& staging, std::string_view archive, const std::string& version);

}  // namespace vantle::updater
