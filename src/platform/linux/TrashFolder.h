#pragma once

#include <cstdint>
#include <string>

#include "support/FileDescriptor.h"
#include "support/Result.h"
#include "support/Url.h"

namespace vantle {

/// A Trash as freedesktop.org specifies it, open: the folder "files" with what was trashed, and the
/// folder "info" with where it came from. Other programs use it at the same time.
struct TrashFolder {
    FileDescriptor files;
    FileDescriptor info;
    /// What the paths in "info" start from, with a slash at the end; empty where they are absolute.
    std::string top;
};

/// Which part of the file tree a rename() cannot leave: a mount, and on some file systems less.
struct Volume {
    std::uint64_t mount = 0;
    std::uint64_t device = 0;
    friend bool operator==(const Volume&, const Volume&) = default;
};

/// The volume of a folder, or of where it would stand when it is not there yet.
Result<Volume> volumeOf(const std::string& folder);

/// The Trash of the user's home, made where it is missing. `dataFolder` is $XDG_DATA_HOME.
Result<TrashFolder> openHomeTrash(const Url& dataFolder);

/// One of a volume's, by trying the shared one with the user's folder in it first, then the user's
/// own; made where it is missing. `folder` is a real path on that volume.
Result<TrashFolder> openVolumeTrash(const std::string& folder, const Volume& volume);

}  // namespace vantle
