#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "support/Result.h"
#include "support/Url.h"

namespace vantle {

/// Reads a regular file of at most `limit` bytes; a longer one fails with EFBIG, anything but a
/// regular file with EISDIR or EINVAL.
Result<std::string> readWholeFile(const Url& file, std::size_t limit);

/// What a file is to outlive.
enum class Durability {
    untilRestart,    ///< This program; the machine dying may leave it empty.
    throughFailure,  ///< Everything. Waits for the disk.
};

/// Puts `contents` in the place of the file in one step: at any moment, with the default also when
/// the machine dies, either the old or the new one stands there whole. Creates missing folders. A
/// symbolic link stays and its target is replaced; the mode of an existing file is kept.
Outcome replaceWholeFile(const Url& file, std::string_view contents,
                         Durability durability = Durability::throughFailure);

/// Renames the file to "NAME.damaged" (or "-2", "-3", ... when that is taken) and gives the new
/// name. Never overwrites anything.
Result<Url> keepAside(const Url& file);

}  // namespace vantle
