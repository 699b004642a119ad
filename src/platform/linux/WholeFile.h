#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "support/Result.h"
#include "support/Url.h"

namespace vantle {

/// Reads a regular file of at most `limit` bytes. Fails with EFBIG if the file is longer, and with
/// EISDIR or EINVAL if it is not a regular file.
Result<std::string> readWholeFile(const Url& file, std::size_t limit);

/// What a file has to survive.
enum class Durability {
    untilRestart,    ///< The end of this program. A crash of the system may leave the file empty.
    throughFailure,  ///< A crash of the system or a power failure. Waits for the disk.
};

/// Replaces the file by one with these contents in one step: at any moment either the old or the
/// new file is there, complete. By default that holds even if the system crashes. Creates missing
/// folders. Keeps a symbolic link and replaces its target; keeps the mode of an existing file.
Outcome replaceWholeFile(const Url& file, std::string_view contents,
                         Durability durability = Durability::throughFailure);

/// Renames the file to "NAME.damaged" ("NAME.damaged-2", "-3", ... if that is taken) and returns
/// the new name. Never overwrites a file.
Result<Url> renameDamagedFile(const Url& file);

}  // namespace vantle
