#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "support/Result.h"

namespace vantle::updater {

/// What a copy of the program says of itself (share/vantle/release): "version", "platform", and
/// "installation", which is "tree" or "package". Empty where it says nothing.
std::map<std::string, std::string> releaseOf(const std::filesystem::path& tree);

/// Whether the tree is the version for the platform, holds each file of its manifest
/// (share/vantle/manifest, as sha256sum writes it) as it should be, and no other.
Outcome verifyTree(const std::filesystem::path& tree, const std::string& version,
                   const std::string& platform);

/// Whether there is nothing in the tree but what its manifest names: else somebody keeps there what
/// would go with it.
Outcome refuseStrangers(const std::filesystem::path& tree);

}  // namespace vantle::updater
