#pragma once

#include <filesystem>

#include "support/FileDescriptor.h"
#include "support/Result.h"

namespace vantle::updater {

/// The folder beside a tree in which the next version is made and the one before is kept. Only
/// this user can look into it, and only one process at a time uses it. Nothing outside is ever
/// removed.
class Staging {
public:
    /// Makes it where it is missing. Fails with EBUSY while another process has it.
    static Result<Staging> open(const std::filesystem::path& tree);

    const std::filesystem::path& folder() const { return folder_; }
    /// What is not whole yet.
    std::filesystem::path unpacking() const { return folder_ / "unpacking"; }
    /// A whole tree that is to take the place of the other.
    std::filesystem::path next() const { return folder_ / "next"; }
    /// The tree that had that place before.
    std::filesystem::path previous() const { return folder_ / "previous"; }

    /// Removes one of these, with all that is in it. Harmless when it is not there.
    Outcome discard(const std::filesystem::path& part) const;

private:
    Staging(std::filesystem::path folder, FileDescriptor lock)
        : folder_(std::move(folder)), lock_(std::move(lock)) {}

    std::filesystem::path folder_;
    FileDescriptor lock_;
};

}  // namespace vantle::updater
