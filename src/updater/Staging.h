#pragma once

#include <filesystem>

#include "support/FileDescriptor.h"
#include "support/Result.h"

namespace vantle::updater {

/// The folder beside a tree in which the next version is made and the previous one is kept. Only
/// this user can access it, and only one process at a time uses it. Nothing outside is ever
/// removed.
class Staging {
public:
    /// Creates the folder if necessary. Fails with EBUSY while another process uses it.
    static Result<Staging> open(const std::filesystem::path& tree);

    const std::filesystem::path& folder() const { return folder_; }
    /// A tree that is not complete yet.
    std::filesystem::path unpacking() const { return folder_ / "unpacking"; }
    /// A whole tree that will replace the current one.
    std::filesystem::path next() const { return folder_ / "next"; }
    /// The tree that was replaced last.
    std::filesystem::path previous() const { return folder_ / "previous"; }

    /// Removes one of these with its contents. Does nothing if it does not exist.
    Outcome discard(const std::filesystem::path& part) const;

private:
    Staging(std::filesystem::path folder, FileDescriptor lock)
        : folder_(std::move(folder)), lock_(std::move(lock)) {}

    std::filesystem::path folder_;
    FileDescriptor lock_;
};

}  // namespace vantle::updater
