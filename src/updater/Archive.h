#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>

#include "support/Result.h"

namespace vantle::updater {

struct ArchiveLimits {
    std::uint64_t bytes = 0;  ///< Of all files, unpacked.
    std::uint64_t entries = 0;
};

/// Unpacks a release (tar, compressed with Zstandard) into `folder`, which is there and empty, so
/// that it becomes the tree. Takes only plain files and folders below "vantle/", whose names lead
/// nowhere else; of their modes only whether a file can be run. Stops at the first thing that is
/// not so, or at a limit, and then leaves behind what was unpacked up to there. Returns when all is
/// on the disk.
Outcome unpack(std::string_view bytes, const std::filesystem::path& folder,
               const ArchiveLimits& limits);

}  // namespace vantle::updater
