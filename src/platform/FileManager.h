#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "support/Date.h"
#include "support/NameList.h"
#include "support/Result.h"
#include "support/Url.h"

namespace vantle {

/// The properties of a file that can be read without opening it. For a symbolic link, they describe
/// the link itself, not its target.
struct ResourceValues {
    std::optional<Date> creationDate;
    std::optional<Date> contentModificationDate;
    /// Absent while it cannot be determined: a recording that some program is still writing is not
    /// yet reported as a regular file. Only a system whose DirectoryEvents report the end of the
    /// writing may leave it absent; elsewhere a file that is being written is a regular one.
    std::optional<bool> isRegularFile;
};

/// Reads and writes folders and files by path. Any thread may call any function. All but isRemote()
/// wait for the file system.
class FileManager {
public:
    enum class Existence { none, file, directory };

    virtual ~FileManager() = default;

    /// Returns what exists at the path, following links. A path that cannot be examined does not
    /// exist.
    virtual Existence existence(const Url& url) const = 0;

    /// Returns true if operations on this path go to another computer or another program, which may
    /// answer late or never. Does not wait.
    virtual bool isRemote(const Url& url) const = 0;

    /// Returns the names in the folder in the file system's order, without hidden ones (which begin
    /// with a full stop). Fails with the system's error number.
    virtual Result<NameList> contentsOfDirectory(const Url& folder) const = 0;

    /// Fails if the file cannot be examined, for instance because it is gone.
    virtual Result<ResourceValues> resourceValues(const Url& url) const = 0;

    /// Returns the size in bytes, following links; absent if it cannot be read.
    virtual std::optional<std::int64_t> fileSize(const Url& url) const = 0;

    /// Creates the folder and all missing parents. Succeeds if the folder already exists.
    virtual Outcome createDirectory(const Url& folder) = 0;

    /// Writes a file with these contents, replacing an existing one. No reader ever sees a part of
    /// it. The contents need not survive a power failure.
    virtual Outcome write(const std::string& contents, const Url& file) = 0;

    /// Renames a file without replacing another one. Fails with the kind std::errc::file_exists if
    /// the new name is taken, no_such_file_or_directory if the file is gone, and
    /// filename_too_long.
    virtual Outcome rename(const Url& from, const Url& to) = 0;

    /// Returns a folder for files that need not survive a restart, which only this user can access.
    /// Creates it if it does not exist.
    virtual Result<Url> temporaryDirectory() = 0;

    virtual Url homeDirectory() const = 0;

    /// Returns the home folder of another user; absent if that user does not exist.
    virtual std::optional<Url> homeDirectory(const std::string& user) const = 0;

    /// Returns the user's Desktop folder as the desktop's own settings name it, whether or not it
    /// exists; absent if the user has none.
    virtual std::optional<Url> desktopDirectory() const = 0;
};

}  // namespace vantle
