#include "platform/linux/LinuxFileManager.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/linux/DirectoryStream.h"
#include "platform/linux/FileMove.h"
#include "platform/linux/UserDirectories.h"
#include "platform/linux/WholeFile.h"
#include "platform/linux/WriterCheck.h"
#include "support/SystemFailure.h"

namespace vantle {
namespace {

Date date(const statx_timestamp& stamp) {
    // A file system can store dates that do not fit into nanoseconds.
    constexpr std::int64_t furthest = 9'000'000'000;
    const std::chrono::seconds seconds(std::clamp<std::int64_t>(stamp.tv_sec, -furthest, furthest));
    return Date(seconds + std::chrono::nanoseconds(stamp.tv_nsec));
}

/// Returns true if both names are one entry of a folder that does not distinguish cases.
bool isSameEntry(const Url& a, const Url& b) {
    struct stat first {};
    struct stat second {};
    return lstat(a.path().c_str(), &first) == 0 && lstat(b.path().c_str(), &second) == 0 &&
           first.st_ino == second.st_ino && first.st_dev == second.st_dev && first.st_nlink == 1;
}

}  // namespace

LinuxFileManager::LinuxFileManager(Environment environment,
                                   std::function<bool(const Url&)> isRecording, MountFiles mounts)
    : environment_(std::move(environment)),
      isRecording_(std::move(isRecording)),
      mounts_(std::move(mounts)) {}

FileManager::Existence LinuxFileManager::existence(const Url& url) const {
    struct stat status {};
    if (stat(url.path().c_str(), &status) != 0) return Existence::none;
    return S_ISDIR(status.st_mode) ? Existence::directory : Existence::file;
}

bool LinuxFileManager::isRemote(const Url& url) const {
    return MountTable(mounts_).isRemote(url);
}

Result<NameList> LinuxFileManager::contentsOfDirectory(const Url& folder) const {
    const DirectoryStream directory(opendir(folder.path().c_str()));
    if (!directory) return systemFailure(errno, folder.path());
    NameList names;
    for (;;) {
        errno = 0;
        const dirent* entry = readdir(directory.get());
        if (!entry) break;
        if (entry->d_name[0] != '.') names.add(entry->d_name);
    }
    if (errno != 0) return systemFailure(errno, folder.path());
    return names;
}

Result<ResourceValues> LinuxFileManager::resourceValues(const Url& url) const {
    struct statx status {};
    if (statx(AT_FDCWD, url.path().c_str(), AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT,
              STATX_TYPE | STATX_MTIME | STATX_BTIME, &status) != 0)
        return systemFailure(errno, url.path());
    ResourceValues values;
    if (status.stx_mask & STATX_BTIME) values.creationDate = date(status.stx_btime);
    if (status.stx_mask & STATX_MTIME) values.contentModificationDate = date(status.stx_mtime);
    if (status.stx_mask & STATX_TYPE) values.isRegularFile = S_ISREG(status.stx_mode);
    if (values.isRegularFile == true && isRecording_(url) && hasWriter(url))
        values.isRegularFile.reset();
    return values;
}

std::optional<std::int64_t> LinuxFileManager::fileSize(const Url& url) const {
    struct stat status {};
    if (stat(url.path().c_str(), &status) != 0) return std::nullopt;
    return status.st_size;
}

Outcome LinuxFileManager::createDirectory(const Url& folder) {
    if (existence(folder) == Existence::file) return systemFailure(EEXIST, folder.path());
    if (MountTable(mounts_).isUnmounted(folder)) return systemFailure(ENODEV, folder.path());
    std::error_code error;
    std::filesystem::create_directories(folder.path(), error);
    if (error) return systemFailure(error.value(), folder.path());
    return {};
}

Outcome LinuxFileManager::write(const std::string& contents, const Url& file) {
    return replaceWholeFile(file, contents, Durability::untilRestart);
}

Outcome LinuxFileManager::rename(const Url& from, const Url& to) {
    int error = moveByRename(from.path(), AT_FDCWD, to.path());
    if (error == EEXIST && isSameEntry(from, to))
        error = ::rename(from.path().c_str(), to.path().c_str()) == 0 ? 0 : errno;
    if (error == 0) return {};
    return systemFailure(error, error == ENOENT ? from.path() : to.path());
}

Result<Url> LinuxFileManager::temporaryDirectory() {
    const auto chosen = environment_("TMPDIR");
    const Url shared = Url::file(chosen && chosen->starts_with('/') ? *chosen : "/tmp");
    const Url own = shared.appending("vantle-" + std::to_string(getuid()));
    if (mkdir(own.path().c_str(), S_IRWXU) != 0 && errno != EEXIST)
        return systemFailure(errno, own.path());
    // Another user may have created the folder first.
    struct stat status {};
    if (lstat(own.path().c_str(), &status) != 0) return systemFailure(errno, own.path());
    const bool isOurs = S_ISDIR(status.st_mode) && status.st_uid == getuid() &&
                        (status.st_mode & (S_IRWXG | S_IRWXO)) == 0;
    if (!isOurs) return systemFailure(EPERM, own.path());
    return own;
}

Url LinuxFileManager::homeDirectory() const {
    return UserDirectories(environment_).home();
}

std::optional<Url> LinuxFileManager::homeDirectory(const std::string& user) const {
    passwd entry{};
    passwd* found = nullptr;
    std::array<char, std::size_t{16} * 1024> buffer{};
    getpwnam_r(user.c_str(), &entry, buffer.data(), buffer.size(), &found);
    const bool isPath = found && found->pw_dir && found->pw_dir[0] == '/';
    return isPath ? std::optional(Url::file(found->pw_dir)) : std::nullopt;
}

std::optional<Url> LinuxFileManager::desktopDirectory() const {
    return UserDirectories(environment_).desktop();
}

}  // namespace vantle
