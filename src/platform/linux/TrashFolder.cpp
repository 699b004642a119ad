#include "platform/linux/TrashFolder.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <utility>

#include "support/SystemFailure.h"

namespace vantle {
namespace {

constexpr mode_t ownerOnly = 0700;
constexpr auto homeName = "Trash";
constexpr auto sharedName = ".Trash";
// Links are not followed: other users can write to the roots of some volumes and place links there.
constexpr int folderFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

/// Opens the folder and creates it if it is missing. It must not be a link and must belong to the
/// user.
Result<FileDescriptor> openOwnFolder(int parent, const std::string& name) {
    if (mkdirat(parent, name.c_str(), ownerOnly) != 0 && errno != EEXIST)
        return systemFailure(errno, name);
    FileDescriptor folder(openat(parent, name.c_str(), folderFlags));
    if (!folder) return systemFailure(errno, name);
    struct stat status {};
    if (fstat(folder.get(), &status) != 0) return systemFailure(errno, name);
    if (status.st_uid != geteuid()) return systemFailure(EPERM, name);
    return folder;
}

Result<TrashFolder> openInside(Result<FileDescriptor> trash, Url path, std::string top) {
    if (!trash) return trash.failure();
    auto files = openOwnFolder(trash.value().get(), TrashFolder::filesName);
    if (!files) return files.failure();
    auto info = openOwnFolder(trash.value().get(), TrashFolder::infoName);
    if (!info) return info.failure();
    return TrashFolder{std::move(path), std::move(files.value()), std::move(info.value()),
                       std::move(top)};
}

/// Opens this user's folder in the Trash that the administrator has made for all users. That must
/// not be a link and must have the sticky bit, so that users cannot touch each other's files.
Result<FileDescriptor> openShared(int top, const std::string& user) {
    const FileDescriptor shared(openat(top, sharedName, folderFlags));
    struct stat status {};
    if (!shared || fstat(shared.get(), &status) != 0) return systemFailure(errno, sharedName);
    if ((status.st_mode & S_ISVTX) == 0) return systemFailure(EPERM, sharedName);
    return openOwnFolder(shared.get(), user);
}

/// Returns the topmost folder of the volume above `folder`.
std::string topOf(const std::string& folder, const Volume& volume) {
    std::filesystem::path top = folder;
    while (top.has_relative_path()) {
        const auto above = volumeOf(top.parent_path());
        if (!above || above.value() != volume) break;
        top = top.parent_path();
    }
    return top;
}

}  // namespace

Result<Volume> volumeOf(const std::string& folder) {
    struct statx status {};
    if (statx(AT_FDCWD, folder.c_str(), 0, STATX_BASIC_STATS | STATX_MNT_ID, &status) != 0) {
        const std::filesystem::path path = folder;
        if (errno == ENOENT && path.has_relative_path()) return volumeOf(path.parent_path());
        return systemFailure(errno, folder);
    }
    return Volume{status.stx_mnt_id, makedev(status.stx_dev_major, status.stx_dev_minor)};
}

Result<TrashFolder> openHomeTrash(const Url& dataFolder) {
    std::error_code error;
    std::filesystem::create_directories(dataFolder.path(), error);
    if (error) return systemFailure(error.value(), dataFolder.path());
    const FileDescriptor data(open(dataFolder.path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!data) return systemFailure(errno, dataFolder.path());
    return openInside(openOwnFolder(data.get(), homeName), dataFolder.appending(homeName), {});
}

Result<TrashFolder> openVolumeTrash(const std::string& folder, const Volume& volume) {
    const std::string path = topOf(folder, volume);
    const FileDescriptor top(open(path.c_str(), folderFlags));
    if (!top) return systemFailure(errno, path);
    const std::string user = std::to_string(geteuid());
    const std::string prefix = path == "/" ? path : path + "/";
    const Url sharedPath = Url::file(path).appending(sharedName).appending(user);
    auto shared = openInside(openShared(top.get(), user), sharedPath, prefix);
    if (shared) return shared;
    const std::string ownName = sharedName + ("-" + user);
    return openInside(openOwnFolder(top.get(), ownName), Url::file(path).appending(ownName),
                      prefix);
}

}  // namespace vantle
