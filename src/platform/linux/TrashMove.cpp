#include "platform/linux/TrashMove.h"

#include <fcntl.h>
#include <limits.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "support/SystemFailure.h"

namespace vantle {
namespace {

constexpr std::string_view infoExtension = ".trashinfo";
constexpr int maximumNames = 100'000;

/// Brings the file into the Trash after its information was written. Returns 0 or the system's
/// error number; EEXIST means that the name is taken.
using Transfer = std::function<int(const TrashFolder& trash, const std::string& name)>;

std::string deletionDate() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    char text[32] = "";
    std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S", &local);
    return text;
}

/// Returns the path percent-encoded, as the information stores it.
std::string encoded(const std::string& path) {
    constexpr std::string_view scheme = "file://";
    return Url::file(path).address().substr(scheme.size());
}

std::string infoText(const TrashFolder& trash, const std::string& path) {
    return "[Trash Info]\nPath=" + encoded(path.substr(trash.top.size())) +
           "\nDeletionDate=" + deletionDate() + "\n";
}

/// Returns the name for the n-th attempt: "shot.png", "shot.2.png", "shot.3.png". Shortens it if
/// the name of its information would be too long.
std::string attemptedName(const Url& file, int attempt) {
    std::string extension(file.pathExtension());
    if (!extension.empty()) extension.insert(0, 1, '.');
    std::string stem(file.lastPathComponent());
    stem.resize(stem.size() - extension.size());
    if (attempt > 1) extension.insert(0, "." + std::to_string(attempt));
    const std::size_t room = NAME_MAX - infoExtension.size();
    if (extension.size() >= room) extension.clear();
    std::size_t length = std::min(stem.size(), room - extension.size());
    // The name must not be cut inside a UTF-8 character.
    while (length < stem.size() && length > 0 && (stem[length] & 0xC0) == 0x80) --length;
    return stem.substr(0, length) + extension;
}

int writeAll(int descriptor, std::string_view text) {
    while (!text.empty()) {
        const auto count = write(descriptor, text.data(), text.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return errno;
        text.remove_prefix(static_cast<std::size_t>(count));
    }
    return fdatasync(descriptor) == 0 ? 0 : errno;
}

/// Reserves the name by creating its information file, then moves the file there. Returns 0 or the
/// error number; EEXIST means that the name is taken.
int moveAs(const TrashFolder& trash, const std::string& name, const std::string& text,
           const Transfer& transfer) {
    const std::string infoName = name + std::string(infoExtension);
    const FileDescriptor info(openat(trash.info.get(), infoName.c_str(),
                                     O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!info) return errno;
    int error = writeAll(info.get(), text);
    if (error == 0) error = transfer(trash, name);
    if (error != 0) unlinkat(trash.info.get(), infoName.c_str(), 0);
    return error;
}

Outcome moveInto(const TrashFolder& trash, const std::string& path, const Transfer& transfer) {
    const std::string text = infoText(trash, path);
    for (int attempt = 1; attempt <= maximumNames; ++attempt) {
        const int error = moveAs(trash, attemptedName(Url::file(path), attempt), text, transfer);
        if (error == 0) return {};
        if (error != EEXIST) return systemFailure(error, path);
    }
    return systemFailure(EEXIST, path);
}

/// Renames on file systems that do not support RENAME_NOREPLACE. The information file reserves the
/// name, so only a program that ignores the rules of the Trash could take it in between.
int renameWhereFree(const std::string& path, int folder, const std::string& name) {
    if (faccessat(folder, name.c_str(), F_OK, AT_SYMLINK_NOFOLLOW) == 0) return EEXIST;
    return renameat(AT_FDCWD, path.c_str(), folder, name.c_str()) == 0 ? 0 : errno;
}

Transfer renameTransfer(const std::string& path) {
    return [path](const TrashFolder& trash, const std::string& name) {
        const int folder = trash.files.get();
        if (renameat2(AT_FDCWD, path.c_str(), folder, name.c_str(), RENAME_NOREPLACE) == 0)
            return 0;
        return errno == EINVAL ? renameWhereFree(path, folder, name) : errno;
    };
}

bool isSame(const struct stat& a, const struct stat& b) {
    return a.st_ino == b.st_ino && a.st_dev == b.st_dev && a.st_size == b.st_size &&
           a.st_mtim.tv_sec == b.st_mtim.tv_sec && a.st_mtim.tv_nsec == b.st_mtim.tv_nsec;
}

int copyContents(int from, int to, off_t size) {
    for (off_t left = size; left > 0;) {
        const auto count = sendfile(to, from, nullptr, static_cast<std::size_t>(left));
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return errno;
        if (count == 0) return EIO;
        left -= count;
    }
    return 0;
}

/// Copies the file with its times and permissions and waits until the copy is on disk. The copy has
/// no name until it is complete.
int copyAs(int file, const struct stat& status, const TrashFolder& trash, const std::string& name) {
    const FileDescriptor copy(openat(trash.files.get(), ".", O_TMPFILE | O_RDWR | O_CLOEXEC, 0600));
    if (!copy) return errno;
    if (const int error = copyContents(file, copy.get(), status.st_size)) return error;
    const timespec times[] = {status.st_atim, status.st_mtim};
    if (fchmod(copy.get(), status.st_mode & 07777) != 0 || futimens(copy.get(), times) != 0 ||
        fsync(copy.get()) != 0)
        return errno;
    const std::string handle = "/proc/self/fd/" + std::to_string(copy.get());
    const int result =
        linkat(AT_FDCWD, handle.c_str(), trash.files.get(), name.c_str(), AT_SYMLINK_FOLLOW);
    return result == 0 ? 0 : errno;
}

/// Removes the file when its copy is safe from a power failure. If the file has changed since it
/// was copied or cannot be removed, removes the copy instead.
int removeCopied(const std::string& path, const struct stat& status, const TrashFolder& trash,
                 const std::string& name) {
    struct stat now {};
    const bool isKept = fsync(trash.info.get()) == 0 && fsync(trash.files.get()) == 0;
    int error = isKept && lstat(path.c_str(), &now) == 0 ? 0 : errno;
    if (error == 0 && !isSame(now, status)) error = EBUSY;
    if (error == 0 && unlink(path.c_str()) != 0) error = errno;
    if (error != 0) unlinkat(trash.files.get(), name.c_str(), 0);
    return error;
}

Transfer copyTransfer(const std::string& path) {
    return [path](const TrashFolder& trash, const std::string& name) -> int {
        const FileDescriptor file(
            open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
        struct stat status {};
        if (!file || fstat(file.get(), &status) != 0) return errno;
        if (!S_ISREG(status.st_mode)) return EXDEV;
        if (const int error = copyAs(file.get(), status, trash, name)) return error;
        return removeCopied(path, status, trash, name);
    };
}

/// Returns 0 if a file can be removed from the folder, otherwise the error number. Checked first,
/// so that no large file is copied in vain.
int removalError(const std::string& folder) {
    return faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0 ? 0 : errno;
}

Outcome moveInto(const Result<TrashFolder>& trash, const std::string& path,
                 const Transfer& transfer) {
    return trash ? moveInto(trash.value(), path, transfer) : Outcome(trash.failure());
}

Outcome moveFrom(const std::string& folder, const std::string& path, const Url& dataFolder) {
    const auto volume = volumeOf(folder);
    if (!volume) return volume.failure();
    const auto homeVolume = volumeOf(dataFolder.path());
    const bool isAtHome = homeVolume && homeVolume.value() == volume.value();
    Outcome failure =
        moveInto(isAtHome ? openHomeTrash(dataFolder) : openVolumeTrash(folder, volume.value()),
                 path, renameTransfer(path));
    if (!failure || (isAtHome && failure->code != EXDEV)) return failure;
    return moveInto(openHomeTrash(dataFolder), path, copyTransfer(path));
}

}  // namespace

Outcome moveToTrash(const Url& file, const Url& dataFolder) {
    std::error_code error;
    // The Trash stores the path without links: otherwise restoring could lead to another folder.
    const auto folder = std::filesystem::canonical(file.deletingLastPathComponent().path(), error);
    if (error) return systemFailure(error.value(), file.path());
    const std::string path = folder / file.lastPathComponent();
    struct stat status {};
    if (lstat(path.c_str(), &status) != 0) return systemFailure(errno, file.path());
    if (const int denied = removalError(folder)) return systemFailure(denied, file.path());
    return moveFrom(folder, path, dataFolder);
}

}  // namespace vantle
