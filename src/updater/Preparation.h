#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "support/Result.h"
#include "updater/Staging.h"

namespace vantle::updater {

/// Whether the tree can be replaced: nothing in it belongs to somebody else, and the file system
/// can do it in one step. Clears what an earlier attempt has left.
Outcome checkPlace(const std::filesystem::path& tree, const Staging& staging);

/// Unpacks a release, verifies that it is the version for this system, and makes it
/// `staging.next()`. That is never there but whole, whenever this ends.
Outcome makeNext(const Staging& staging, std::string_view archive, const std::string& version);

}  // namespace vantle::updater
