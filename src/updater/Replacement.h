#pragma once

#include <filesystem>

#include "support/Result.h"
#include "updater/Staging.h"

namespace vantle::updater {

/// Fails if the file system cannot exchange two folders in one step. Tries it with two folders of
/// its own.
Outcome tryExchange(const Staging& staging);

/// Puts `staging.next()` in the place of the tree, and the tree in the place of
/// `staging.previous()`, which is deleted. At every moment, even if the machine crashes, a whole
/// tree is in its place: either the old one or the new one.
Outcome replaceTree(const std::filesystem::path& tree, const Staging& staging);

/// Puts `staging.previous()` back in its place, in the same way, and deletes the tree that was
/// there.
Outcome restoreTree(const std::filesystem::path& tree, const Staging& staging);

}  // namespace vantle::updater
