#pragma once

#include <map>
#include <string>

#include "support/Url.h"

namespace vantle {

/// Where it stands which file systems are mounted and which are to be, each as fstab(5) has it.
struct MountFiles {
    std::string present = "/proc/self/mounts";
    std::string expected = "/etc/fstab";
};

/// The mounted file systems, and those that are expected, at the moment of its making. It asks the
/// kernel's tables only, never a file system: that of a dead server would not answer. Any thread.
class MountTable {
public:
    explicit MountTable(const MountFiles& files = {});

    /// Whether `url` is or lies in a mount point at which a file system is expected and none is.
    bool isUnmounted(const Url& url) const;

    /// Whether what is asked of `url` goes to another computer or another program, which may answer
    /// late or never.
    bool isRemote(const Url& url) const;

private:
    enum class Kind { own, remote, expected };

    /// That of the innermost mount point in which the path lies, as it is written.
    Kind kindOf(const std::string& path) const;
    /// That of what the path leads to. Links are followed as far as nobody else is asked.
    Kind kindBehindLinks(const Url& url) const;

    std::map<std::string, Kind> points_;
};

}  // namespace vantle
