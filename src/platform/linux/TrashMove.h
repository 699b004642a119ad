#pragma once

#include "platform/linux/TrashFolder.h"
#include "support/Result.h"
#include "support/Url.h"

namespace vantle {

/// Moves a file to the user's Trash as freedesktop.org specifies it: to that of the home folder
/// where both are on one volume, else to that of the file's volume; where that cannot be made it is
/// copied to the home folder's and removed when the copy is complete. Never over another file.
/// Interrupted at any moment, the file is whole at one of both places. Blocks, for long only while
/// it copies.
///
/// `dataFolder` is $XDG_DATA_HOME. Fails with the system's error number; the file has not moved
/// then.
Outcome moveToTrash(const Url& file, const Url& dataFolder);

}  // namespace vantle
