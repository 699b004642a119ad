#include "platform/linux/WriterCheck.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/vfs.h>

#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <string>

#include "platform/linux/DirectoryStream.h"
#include "support/FileDescriptor.h"

namespace vantle {
namespace {

/// Requests a read lease, which the kernel refuses while a writer exists. Returns 0 or the error
/// number.
int failureOfLease(int file) {
    // If a writer opens the file during the lease, the kernel sends a signal. The default, SIGIO,
    // would end the program.
    if (fcntl(file, F_SETSIG, SIGURG) != 0) return errno;
    if (fcntl(file, F_SETLEASE, F_RDLCK) != 0) return errno;
    fcntl(file, F_SETLEASE, F_UNLCK);
    return 0;
}

/// Returns the kind of the file system as in statfs(2), or 0 if statfs fails.
std::uint32_t fileSystemOf(int file) {
    struct statfs system {};
    return fstatfs(file, &system) == 0 ? static_cast<std::uint32_t>(system.f_type) : 0;
}

bool isOpenForWriting(const std::string& process, const char* descriptor) {
    std::ifstream info(process + "/fdinfo/" + descriptor);
    for (std::string name, value; info >> name >> value;)
        if (name == "flags:") return (std::strtoul(value.c_str(), nullptr, 8) & O_ACCMODE) != 0;
    return false;
}

bool processWrites(const std::string& process, const struct stat& file) {
    const std::string folder = process + "/fd";
    const DirectoryStream descriptors(opendir(folder.c_str()));
    if (!descriptors) return false;  // another user's process, or one that has ended
    while (const dirent* entry = readdir(descriptors.get())) {
        struct stat other {};
        const bool isSameFile = stat((folder + "/" + entry->d_name).c_str(), &other) == 0 &&
                                other.st_dev == file.st_dev && other.st_ino == file.st_ino;
        if (isSameFile && isOpenForWriting(process, entry->d_name)) return true;
    }
    return false;
}

bool hasWriterAmongProcesses(int descriptor) {
    struct stat file {};
    const DirectoryStream processes(opendir("/proc"));
    if (!processes || fstat(descriptor, &file) != 0) return false;
    while (const dirent* entry = readdir(processes.get())) {
        const bool isProcess = entry->d_name[0] >= '1' && entry->d_name[0] <= '9';
        if (isProcess && processWrites(std::string("/proc/") + entry->d_name, file)) return true;
    }
    return false;
}

}  // namespace

std::optional<bool> hasWriterByLease(int failure, std::uint32_t fileSystem) {
    if (failure == 0) return false;
    const bool isServer = fileSystem == NFS_SUPER_MAGIC || fileSystem == SMB_SUPER_MAGIC ||
                          fileSystem == CIFS_SUPER_MAGIC || fileSystem == SMB2_SUPER_MAGIC;
    if (failure == EAGAIN && !isServer) return true;
    return std::nullopt;
}

bool hasWriter(const Url& url) {
    const FileDescriptor file(
        open(url.path().c_str(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC));
    if (!file) return false;
    const auto byLease = hasWriterByLease(failureOfLease(file.get()), fileSystemOf(file.get()));
    return byLease ? *byLease : hasWriterAmongProcesses(file.get());
}

}  // namespace vantle
