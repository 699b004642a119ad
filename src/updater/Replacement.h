#pragma once

#include <filesystem>

#include "support/Result.h"
#include "updater/Staging.h"

namespace vantle::updater {

/// Whether the file system can exchange two folders in one step. Tries it with two of its own.
Outcome tryExchange(const Staging& staging);

/// Puts `staging.next()` in the place of the tree, and that in the place of `staging.previous()`,
/// which goes. At any moment, also when the machine dies, a whole tree stands in its place: either
/// the old one or the new one.
Outcome replaceTree(const std::filesystem::path& tree, const Staging& staging);

/// Puts `staging.previous()` back in its place, in the same way, and drops the other.
Outcome restoreTree(const std::filesystem::path& tree, const Staging& staging);

}  // namespace vantle::updater
