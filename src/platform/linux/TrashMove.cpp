#include "platform/linux/TrashMove.h"

#include <fcntl.h>
#include <limits.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>
#include <filesystem>
#include <functional>
#include <string>
#include <utility>

#include "platform/linux/FileMove.h"
#include "support/SystemFailure.h"

namespace vantle {
namespace {

constexpr std::string_view infoExtension = ".trashinfo";
constexpr int maximumNames = 100'000;

/// Brings the file into the Trash after its information was written. Returns 0 or the system's
/// error number; EEXIST means that the name is taken.
using Transfer = std::function<int(const TrashFolder& trash, const std::string& name)>;

/// Returns the name of the file that holds the information about a trashed file.
std::string infoFileName(const std::string& name) {
    return name + std::string(infoExtension);
}

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
    const std::string infoFile = infoFileName(name);
    const FileDescriptor info(openat(trash.info.get(), infoFile.c_str(),
                                     O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!info) return errno;
    int error = writeAll(info.get(), text);
    if (error == 0) error = transfer(trash, name);
    if (error != 0) unlinkat(trash.info.get(), infoFile.c_str(), 0);
    return error;
}

Result<Url> moveInto(const TrashFolder& trash, const std::string& path, const Transfer& transfer) {
    const std::string text = infoText(trash, path);
    for (int attempt = 1; attempt <= maximumNames; ++attempt) {
        const std::string name = attemptedName(Url::file(path), attempt);
        const int error = moveAs(trash, name, text, transfer);
        if (error == 0) return trash.path.appending(TrashFolder::filesName).appending(name);
        if (error != EEXIST) return systemFailure(error, path);
    }
    return systemFailure(EEXIST, path);
}

Transfer renameTransfer(const std::string& path) {
    return [path](const TrashFolder& trash, const std::string& name) {
        return moveByRename(path, trash.files.get(), name);
    };
}

Transfer copyTransfer(const std::string& path) {
    return [path](const TrashFolder& trash, const std::string& name) {
        // The information must be on disk before the file is removed from its place.
        return fsync(trash.info.get()) == 0 ? moveByCopy(path, trash.files.get(), name) : errno;
    };
}

/// Returns 0 if a file can be removed from the folder, otherwise the error number. Checked first,
/// so that no large file is copied in vain.
int removalError(const std::string& folder) {
    return faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0 ? 0 : errno;
}

Result<Url> moveInto(const Result<TrashFolder>& trash, const std::string& path,
                     const Transfer& transfer) {
    return trash ? moveInto(trash.value(), path, transfer) : Result<Url>(trash.failure());
}

Result<Url> moveFrom(const std::string& folder, const std::string& path, const Url& dataFolder) {
    const auto volume = volumeOf(folder);
    if (!volume) return volume.failure();
    const auto homeVolume = volumeOf(dataFolder.path());
    const bool isAtHome = homeVolume && homeVolume.value() == volume.value();
    auto moved =
        moveInto(isAtHome ? openHomeTrash(dataFolder) : openVolumeTrash(folder, volume.value()),
                 path, renameTransfer(path));
    if (moved || (isAtHome && moved.failure().code != EXDEV)) return moved;
    return moveInto(openHomeTrash(dataFolder), path, copyTransfer(path));
}

}  // namespace

Result<Url> moveToTrash(const Url& file, const Url& dataFolder) {
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

Outcome putBackFromTrash(const Url& inTrash, const Url& original) {
    const Url folder = original.deletingLastPathComponent();
    const FileDescriptor destination(
        open(folder.path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!destination) return systemFailure(errno, original.path());
    const std::string name(original.lastPathComponent());
    int error = moveByRename(inTrash.path(), destination.get(), name);
    if (error == EXDEV) error = moveByCopy(inTrash.path(), destination.get(), name);
    if (error != 0) return systemFailure(error, original.path());
    const std::string info = infoFileName(std::string(inTrash.lastPathComponent()));
    const Url trash = inTrash.deletingLastPathComponent().deletingLastPathComponent();
    if (unlink(trash.appending(TrashFolder::infoName).appending(info).path().c_str()) != 0 &&
        errno != ENOENT)
        return systemFailure(errno, trash.path());
    return {};
}

}  // namespace vantle
