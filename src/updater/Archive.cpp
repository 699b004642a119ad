#include "updater/Archive.h"

#include <archive.h>
#include <archive_entry.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <system_error>

#include "support/FileDescriptor.h"
#include "support/Localization.h"
#include "support/SystemFailure.h"

namespace vantle::updater {
namespace {

namespace fs = std::filesystem;

constexpr auto top = "vantle";

using ArchivePointer = std::unique_ptr<archive, decltype(&archive_read_free)>;

Failure refused(const std::string& what) {
    return {0, filled(localized("Updater", "The update was refused: %1"), {what}), {}};
}

/// Writes the entries of an archive as files and folders.
class Unpacking {
public:
    Unpacking(archive& source, fs::path folder, const ArchiveLimits& limits)
        : source_(source), folder_(std::move(folder)), left_(limits) {}

    Outcome take(archive_entry& entry) {
        const char* name = archive_entry_pathname(&entry);
        if (!name || !*name)
            return refused(localized("Updater", "it contains a file without a name."));
        if (left_.entries-- == 0)
            return refused(localized("Updater", "it contains too many files."));
        if (!isInside(name))
            return refused(
                filled(localized("Updater", "it contains the unexpected path \"%1\"."), {name}));
        const fs::path path = fs::path(name).lexically_relative(top);
        const bool isLink = archive_entry_hardlink(&entry) || archive_entry_symlink(&entry);
        if (!isLink && archive_entry_filetype(&entry) == AE_IFDIR) return makeFolder(path);
        if (isLink || archive_entry_filetype(&entry) != AE_IFREG)
            return refused(
                filled(localized("Updater", "\"%1\" is neither a file nor a folder."), {name}));
        return writeFile(path, (archive_entry_perm(&entry) & S_IXUSR) != 0);
    }

private:
    /// Returns true if a name leads to the top folder or to something below it.
    static bool isInside(const fs::path& name) {
        const auto isUp = [](const fs::path& part) { return part == ".."; };
        return name.is_relative() && *name.begin() == top && std::ranges::none_of(name, isUp);
    }

    Outcome makeFolder(const fs::path& path) const {
        std::error_code error;
        fs::create_directories(folder_ / path, error);
        if (error) return systemFailure(error.value(), path);
        return {};
    }

    Outcome writeFile(const fs::path& path, bool isProgram) {
        if (auto failure = makeFolder(path.parent_path())) return failure;
        const FileDescriptor file(open((folder_ / path).c_str(),
                                       O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
        if (!file) {
            if (errno == EEXIST)
                return refused(
                    filled(localized("Updater", "it contains \"%1\" twice."), {path.string()}));
            return systemFailure(errno, path);
        }
        if (auto failure = copyTo(file.get(), path)) return failure;
        if (fchmod(file.get(), isProgram ? 0755 : 0644) != 0) return systemFailure(errno, path);
        return {};
    }

    Outcome copyTo(int file, const fs::path& path) {
        la_int64_t end = 0;
        for (;;) {
            const void* data = nullptr;
            std::size_t size = 0;
            la_int64_t offset = 0;
            const int status = archive_read_data_block(&source_, &data, &size, &offset);
            if (status == ARCHIVE_EOF) return {};
            if (status != ARCHIVE_OK)
                return refused(localized("Updater", "its archive is damaged."));
            if (offset != end)
                return refused(
                    filled(localized("Updater", "\"%1\" is a sparse file, which is not allowed."),
                           {path.string()}));
            if (size > left_.bytes)
                return refused(localized("Updater", "its unpacked files are too large."));
            left_.bytes -= size;
            end += static_cast<la_int64_t>(size);
            if (auto failure = write(file, static_cast<const char*>(data), size, path))
                return failure;
        }
    }

    static Outcome write(int file, const char* data, std::size_t size, const fs::path& path) {
        while (size > 0) {
            const ssize_t written = ::write(file, data, size);
            if (written < 0 && errno == EINTR) continue;
            if (written < 0) return systemFailure(errno, path);
            data += written;
            size -= static_cast<std::size_t>(written);
        }
        return {};
    }

    archive& source_;
    const fs::path folder_;
    ArchiveLimits left_;
};

Outcome waitForDisk(const fs::path& folder) {
    const FileDescriptor place(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!place || syncfs(place.get()) != 0) return systemFailure(errno, folder);
    return {};
}

}  // namespace

Outcome unpack(std::string_view bytes, const fs::path& folder, const ArchiveLimits& limits) {
    const ArchivePointer source(archive_read_new(), archive_read_free);
    archive_read_support_format_tar(source.get());
    archive_read_support_filter_zstd(source.get());
    if (archive_read_open_memory(source.get(), bytes.data(), bytes.size()) != ARCHIVE_OK)
        return refused(localized("Updater", "it is not an archive."));
    Unpacking unpacking(*source, folder, limits);
    for (;;) {
        archive_entry* entry = nullptr;
        const int status = archive_read_next_header(source.get(), &entry);
        if (status == ARCHIVE_EOF) return waitForDisk(folder);
        if (status != ARCHIVE_OK) return refused(localized("Updater", "its archive is damaged."));
        if (auto failure = unpacking.take(*entry)) return failure;
    }
}

}  // namespace vantle::updater
