#pragma once

#include <cstdint>
#include <string>

#include "support/FileDescriptor.h"
#include "support/Result.h"
#include "support/Url.h"

namespace vantle {

/// An open Trash as freedesktop.org defines it: the folder "files" with the trashed files, and the
/// folder "info" with their original paths. Other programs use it at the same time.
struct TrashFolder {
    static constexpr auto filesName = "files";
    static constexpr auto infoName = "info";

    Url path;
    FileDescriptor files;
    FileDescriptor info;
    /// The folder that the paths in "info" are relative to, with a slash at the end; empty if they
    /// are absolute.
    std::string top;
};

/// A part of the file tree within which rename() works: a mount or, on some file systems, a part of
/// one.
struct Volume {
    std::uint64_t mount = 0;
    std::uint64_t device = 0;
    friend bool operator==(const Volume&, const Volume&) = default;
};

/// Returns the volume of a folder. If the folder does not exist, returns that of its nearest
/// existing parent.
Result<Volume> volumeOf(const std::string& folder);

/// Opens the Trash of the user's home and creates it if it is missing. `dataFolder` is
/// $XDG_DATA_HOME.
Result<TrashFolder> openHomeTrash(const Url& dataFolder);

/// Opens the user's Trash on a volume and creates it if it is missing: the user's folder in the
/// volume's shared Trash or, if that cannot be used, a Trash of the user's own. `folder` is a path
/// on that volume without links.
Result<TrashFolder> openVolumeTrash(const std::string& folder, const Volume& volume);

}  // namespace vantle
