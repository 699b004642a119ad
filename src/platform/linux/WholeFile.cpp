#include "platform/linux/WholeFile.h"

#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <system_error>

#include "support/FileDescriptor.h"
#include "support/SystemFailure.h"

namespace vantle {
namespace {

constexpr mode_t newFileMode = 0644;
constexpr int maximumKeptAside = 1000;

/// Returns the target of a symbolic link, or the file itself if it is not one.
Url target(const Url& file) {
    const std::unique_ptr<char, decltype(&std::free)> path(realpath(file.path().c_str(), nullptr),
                                                           &std::free);
    return path ? Url::file(path.get()) : file;
}

mode_t modeFor(const Url& file) {
    struct stat status {};
    return stat(file.path().c_str(), &status) == 0 ? status.st_mode & 07777 : newFileMode;
}

bool writeAll(int descriptor, std::string_view contents) {
    while (!contents.empty()) {
        const ssize_t written = write(descriptor, contents.data(), contents.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return false;
        contents.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

void synchronizeFolder(const Url& folder) {
    const FileDescriptor descriptor(
        open(folder.path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor) fsync(descriptor.get());
}

}  // namespace

Result<std::string> readWholeFile(const Url& file, std::size_t limit) {
    const FileDescriptor descriptor(open(file.path().c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!descriptor) return systemFailure(errno, file.path());
    struct stat status {};
    if (fstat(descriptor.get(), &status) != 0) return systemFailure(errno, file.path());
    if (S_ISDIR(status.st_mode)) return systemFailure(EISDIR, file.path());
    if (!S_ISREG(status.st_mode)) return systemFailure(EINVAL, file.path());

    std::string contents;
    std::array<char, std::size_t{16} * 1024> buffer;
    for (;;) {
        const ssize_t length = read(descriptor.get(), buffer.data(), buffer.size());
        if (length < 0 && errno == EINTR) continue;
        if (length < 0) return systemFailure(errno, file.path());
        if (length == 0) return contents;
        contents.append(buffer.data(), static_cast<std::size_t>(length));
        if (contents.size() > limit) return systemFailure(EFBIG, file.path());
    }
}

Outcome replaceWholeFile(const Url& file, std::string_view contents, Durability durability) {
    const bool isSynchronized = durability == Durability::throughFailure;
    const Url place = target(file);
    std::error_code error;
    std::filesystem::create_directories(place.deletingLastPathComponent().path(), error);
    if (error) return systemFailure(error.value(), place.path());

    std::string temporary = place.path() + ".XXXXXX";
    FileDescriptor descriptor(mkostemp(temporary.data(), O_CLOEXEC));
    if (!descriptor) return systemFailure(errno, place.path());
    const bool isWritten = fchmod(descriptor.get(), modeFor(place)) == 0 &&
                           writeAll(descriptor.get(), contents) &&
                           (!isSynchronized || fsync(descriptor.get()) == 0) &&
                           rename(temporary.c_str(), place.path().c_str()) == 0;
    if (!isWritten) {
        const int failed = errno;
        unlink(temporary.c_str());
        return systemFailure(failed, place.path());
    }
    if (isSynchronized) synchronizeFolder(place.deletingLastPathComponent());
    return {};
}

Result<Url> renameDamagedFile(const Url& file) {
    for (int number = 1; number <= maximumKeptAside; ++number) {
        const std::string suffix = number == 1 ? "" : "-" + std::to_string(number);
        const Url aside = Url::file(file.path() + ".damaged" + suffix);
        if (renameat2(AT_FDCWD, file.path().c_str(), AT_FDCWD, aside.path().c_str(),
                      RENAME_NOREPLACE) == 0)
            return aside;
        if (errno != EEXIST) return systemFailure(errno, file.path());
    }
    return systemFailure(EEXIST, file.path());
}

}  // namespace vantle
