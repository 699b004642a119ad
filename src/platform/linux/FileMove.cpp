#include "platform/linux/FileMove.h"

#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "support/FileDescriptor.h"

namespace vantle {
namespace {

/// Renames on file systems that do not support RENAME_NOREPLACE. Another program could take the
/// name between the two calls, but nothing better exists there.
int renameWhereFree(const std::string& path, int folder, const std::string& name) {
    if (faccessat(folder, name.c_str(), F_OK, AT_SYMLINK_NOFOLLOW) == 0) return EEXIST;
    return renameat(AT_FDCWD, path.c_str(), folder, name.c_str()) == 0 ? 0 : errno;
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
int copyAs(int file, const struct stat& status, int folder, const std::string& name) {
    const FileDescriptor copy(openat(folder, ".", O_TMPFILE | O_RDWR | O_CLOEXEC, 0600));
    if (!copy) return errno;
    if (const int error = copyContents(file, copy.get(), status.st_size)) return error;
    const timespec times[] = {status.st_atim, status.st_mtim};
    if (fchmod(copy.get(), status.st_mode & 07777) != 0 || futimens(copy.get(), times) != 0 ||
        fsync(copy.get()) != 0)
        return errno;
    const std::string handle = "/proc/self/fd/" + std::to_string(copy.get());
    const int result = linkat(AT_FDCWD, handle.c_str(), folder, name.c_str(), AT_SYMLINK_FOLLOW);
    return result == 0 ? 0 : errno;
}

/// Removes the file when its copy is safe from a power failure. If the file has changed since it
/// was copied or cannot be removed, removes the copy instead.
int removeCopied(const std::string& path, const struct stat& status, int folder,
                 const std::string& name) {
    struct stat now {};
    int error = fsync(folder) == 0 && lstat(path.c_str(), &now) == 0 ? 0 : errno;
    if (error == 0 && !isSame(now, status)) error = EBUSY;
    if (error == 0 && unlink(path.c_str()) != 0) error = errno;
    if (error != 0) unlinkat(folder, name.c_str(), 0);
    return error;
}

}  // namespace

int moveByRename(const std::string& path, int folder, const std::string& name) {
    if (renameat2(AT_FDCWD, path.c_str(), folder, name.c_str(), RENAME_NOREPLACE) == 0) return 0;
    return errno == EINVAL ? renameWhereFree(path, folder, name) : errno;
}

int moveByCopy(const std::string& path, int folder, const std::string& name) {
    const FileDescriptor file(open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat status {};
    if (!file || fstat(file.get(), &status) != 0) return errno;
    if (!S_ISREG(status.st_mode)) return EXDEV;
    if (const int error = copyAs(file.get(), status, folder, name)) return error;
    return removeCopied(path, status, folder, name);
}

}  // namespace vantle
