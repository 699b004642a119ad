#include "updater/Staging.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>
#include <system_error>

#include "support/Localization.h"
#include "support/SystemFailure.h"

namespace vantle::updater {
namespace {

namespace fs = std::filesystem;

/// Returns true if only this user can access the folder. Another user could change any other folder
/// while it is in use.
bool isOwnFolder(const fs::path& folder) {
    struct stat status {};
    return lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
           status.st_uid == geteuid() && (status.st_mode & 077) == 0;
}

}  // namespace

Result<Staging> Staging::open(const fs::path& tree) {
    const fs::path folder = tree.parent_path() / ("." + tree.filename().string() + "-update");
    if (mkdir(folder.c_str(), 0700) != 0 && errno != EEXIST) return systemFailure(errno, folder);
    if (!isOwnFolder(folder))
        return Failure{EPERM,
                       filled(localized("Updater",
                                        "%1 is not a folder that only you can access. Remove or "
                                        "rename it, then try again."),
                              {folder.string()}),
                       folder};
    FileDescriptor lock(
        ::open((folder / "lock").c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!lock) return systemFailure(errno, folder);
    if (flock(lock.get(), LOCK_EX | LOCK_NB) != 0)
        return Failure{EBUSY, localized("Updater", "Another update is already in progress."),
                       folder};
    return Staging(folder, std::move(lock));
}

Outcome Staging::discard(const fs::path& part) const {
    const fs::path going = folder_ / "discarded";
    std::error_code error;
    // remove_all() does not follow links.
    fs::remove_all(going, error);
    if (!error && fs::exists(fs::symlink_status(part, error))) {
        // The part is renamed first, so that half of it is never taken for the whole.
        fs::rename(part, going, error);
        if (!error) fs::remove_all(going, error);
    }
    if (error && error != std::errc::no_such_file_or_directory)
        return systemFailure(error.value(), part);
    return {};
}

}  // namespace vantle::updater
