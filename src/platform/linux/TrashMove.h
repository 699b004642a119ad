#pragma once

#include "platform/linux/TrashFolder.h"
#include "support/Result.h"
#include "support/Url.h"

namespace vantle {

/// Moves a file to the user's Trash as freedesktop.org defines it: to the Trash in the home folder
/// if both are on one volume, otherwise to the Trash of the file's volume. If that cannot be used,
/// copies the file to the Trash in the home folder and removes it when the copy is complete. Never
/// overwrites another file. If it is interrupted, the file is complete in at least one of the two
/// places. Blocks, but takes long only if it copies.
///
/// `dataFolder` is $XDG_DATA_HOME. Fails with the system's error number and leaves the file where
/// it was.
Outcome moveToTrash(const Url& file, const Url& dataFolder);

}  // namespace vantle
