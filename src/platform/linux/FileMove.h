#pragma once

#include <string>

namespace vantle {

/// Moves the file at `path` into the open folder `folder` under `name`. Both functions return 0 or
/// the system's error number: EEXIST if the name is taken, because they never overwrite a file. A
/// link is not followed. The folder must not be closed meanwhile.

/// Works only within one volume; elsewhere returns EXDEV. If the folder is AT_FDCWD, `name` is an
/// absolute path.
int moveByRename(const std::string& path, int folder, const std::string& name);

/// Copies a regular file and removes it when the copy is complete and on disk. If it is
/// interrupted, the file is complete in at least one of the two places. Returns EXDEV for anything
/// else than a regular file. May take long.
int moveByCopy(const std::string& path, int folder, const std::string& name);

}  // namespace vantle
