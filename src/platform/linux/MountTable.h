#pragma once

#include <map>
#include <string>

#include "support/Url.h"

namespace vantle {

/// The files that list the mounted and the expected file systems, both in the format of fstab(5).
struct MountFiles {
    std::string present = "/proc/self/mounts";
    std::string expected = "/etc/fstab";
};

/// The mounted and the expected file systems, as they were when this object was created. Reads only
/// the two tables and links on local disks, and never waits for a server. Any thread.
class MountTable {
public:
    explicit MountTable(const MountFiles& files = {});

    /// Returns true if `url` is or lies in a mount point whose file system is expected but not
    /// mounted.
    bool isUnmounted(const Url& url) const;

    /// Returns true if another computer or another program serves `url`; it may answer late or
    /// never.
    bool isRemote(const Url& url) const;

private:
    enum class Kind { local, remote, unmounted };

    /// Returns the kind of the innermost mount point that contains the path; follows no links.
    Kind kindOf(const std::string& path) const;
    /// Returns the kind of the path's target. Follows links, but only those on local file systems.
    Kind kindOfTarget(const Url& url) const;

    std::map<std::string, Kind> points_;
};

}  // namespace vantle
