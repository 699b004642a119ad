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
/// `dataFolder` is $XDG_DATA_HOME. Returns where the file is now. Fails with the system's error
/// number and leaves the file where it was.
Result<Url> moveToTrash(const Url& file, const Url& dataFolder);

/// Moves a file that is at `inTrash` back to `original` and removes the information about it from
/// the Trash. Never overwrites another file. Blocks as moveToTrash() does. If it fails, the file is
/// still in the Trash, unless only the information could not be removed.
Outcome putBackFromTrash(const Url& inTrash, const Url& original);

}  // namespace vantle
