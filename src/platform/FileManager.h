#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "support/Date.h"
#include "support/NameList.h"
#include "support/Result.h"
#include "support/Url.h"

namespace vantle {

/// What is known of a file without opening it. A symbolic link is described itself, not what it
/// points to.
struct ResourceValues {
    std::optional<Date> creationDate;
    std::optional<Date> contentModificationDate;
    /// Absent while it cannot be said: a recording that some program still writes is not yet
    /// known to be a regular file. Only a system whose DirectoryEvents tell of the end of the
    /// writing may leave it absent; elsewhere a file that is being written is a regular one.
    std::optional<bool> isRegularFile;
};

/// Reads folders and files by path. Every operation may be called on any thread; each but
/// isRemote() waits for the file system.
class FileManager {
public:
    enum class Existence { none, file, directory };

    virtual ~FileManager() = default;

    /// What stands at the path, links followed. A path that cannot be looked at does not exist.
    virtual Existence existence(const Url& url) const = 0;

    /// Whether what is asked of it goes to another computer or another program, which may answer
    /// late or never. Answers at once.
    virtual bool isRemote(const Url& url) const = 0;

    /// The names in the folder in the file system's order, hidden ones (that begin with a full
    /// stop) left out. Fails with the system's error number.
    virtual Result<NameList> contentsOfDirectory(const Url& folder) const = 0;

    /// Fails when the file cannot be looked at, for instance because it has gone.
    virtual Result<ResourceValues> resourceValues(const Url& url) const = 0;

    /// The size in bytes, links followed; absent when it cannot be read.
    virtual std::optional<std::int64_t> fileSize(const Url& url) const = 0;

    /// Makes the folder with all missing parents. A folder that is there already is a success.
    virtual Outcome createDirectory(const Url& folder) = 0;

    /// Puts a file with these contents in the place of the one that stands there, if any. Nobody
    /// ever sees a part of it; whether it outlives a power failure is not said.
    virtual Outcome write(const std::string& contents, const Url& file) = 0;

    /// A folder for files that nobody misses after a restart, which is this user's alone. Made when
    /// it is not there.
    virtual Result<Url> temporaryDirectory() = 0;

    virtual Url homeDirectory() const = 0;

    /// That of another user; absent when there is no such user.
    virtual std::optional<Url> homeDirectory(const std::string& user) const = 0;

    /// The user's Desktop folder as the desktop's own settings name it, whether or not it
    /// exists; absent when the user has none.
    virtual std::optional<Url> desktopDirectory() const = 0;
};

}  // namespace vantle
