#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "support/Result.h"

namespace vantle::updater {

/// Returns what a copy of the program states about itself (share/vantle/release): "version",
/// "platform", and "installation", which is "tree" or "package". Returns an empty map if it states
/// nothing.
std::map<std::string, std::string> releaseOf(const std::filesystem::path& tree);

/// Fails unless the tree is this version for this platform, contains each file of its manifest
/// (share/vantle/manifest, in the format of sha256sum) undamaged, and contains no other file.
Outcome verifyTree(const std::filesystem::path& tree, const std::string& version,
                   const std::string& platform);

/// Fails if the tree contains a file that its manifest does not name: the file would be deleted
/// with the tree.
Outcome verifyNoUnknownFiles(const std::filesystem::path& tree);

}  // namespace vantle::updater
