#include "updater/Replacement.h"

#include <fcntl.h>
#include <stdio.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "support/FileDescriptor.h"
#include "support/SystemFailure.h"

namespace vantle::updater {
namespace {

namespace fs = std::filesystem;

/// Waits until the names in `folder` are on the disk.
void waitForDisk(const fs::path& folder) {
    const FileDescriptor place(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    // The step is atomic even if the file system cannot be waited for.
    if (place) fsync(place.get());
}

Outcome exchange(const fs::path& one, const fs::path& other) {
    if (renameat2(AT_FDCWD, one.c_str(), AT_FDCWD, other.c_str(), RENAME_EXCHANGE) != 0)
        return systemFailure(errno, one);
    waitForDisk(one.parent_path());
    waitForDisk(other.parent_path());
    return {};
}

Outcome move(const fs::path& from, const fs::path& to) {
    std::error_code error;
    fs::rename(from, to, error);
    if (error) return systemFailure(error.value(), from);
    waitForDisk(to.parent_path());
    return {};
}

}  // namespace

Outcome tryExchange(const Staging& staging) {
    const fs::path one = staging.folder() / "trial";
    const fs::path other = staging.folder() / "other-trial";
    std::error_code error;
    fs::create_directory(one, error);
    fs::create_directory(other, error);
    if (error) return systemFailure(error.value(), staging.folder());
    auto failure = exchange(one, other);
    for (const auto& each : {one, other}) fs::remove(each, error);
    return failure;
}

Outcome replaceTree(const fs::path& tree, const Staging& staging) {
    if (auto failure = staging.discard(staging.previous())) return failure;
    if (auto failure = exchange(tree, staging.next())) return failure;
    auto failure = move(staging.next(), staging.previous());
    // Without a previous tree there would be nothing to return to, so the exchange is undone.
    if (failure) (void)exchange(tree, staging.next());
    return failure;
}

Outcome restoreTree(const fs::path& tree, const Staging& staging) {
    if (auto failure = exchange(tree, staging.previous())) return failure;
    // It does no harm if parts of the failed tree remain.
    (void)staging.discard(staging.previous());
    return {};
}

}  // namespace vantle::updater
