#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>

#include "support/Result.h"

namespace vantle::updater {

struct ArchiveLimits {
    std::uint64_t bytes = 0;  ///< The size of all files, unpacked.
    std::uint64_t entries = 0;
};

/// Unpacks a release (tar, compressed with Zstandard) into `folder`, which must be an existing,
/// empty folder and becomes the tree. Accepts only plain files and folders below "vantle/" whose
/// names lead nowhere else; uses only the executable bit of their modes. Stops at the first entry
/// that violates this, or at a limit, and then leaves behind what it has unpacked so far. Returns
/// when everything is on the disk.
Outcome unpack(std::string_view bytes, const std::filesystem::path& folder,
               const ArchiveLimits& limits);

}  // namespace vantle::updater
