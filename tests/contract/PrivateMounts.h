#pragma once

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "support/Url.h"

namespace vantle {

/// Mounts that only this process sees, and that end with it.
class PrivateMounts {
public:
    /// From now on mounts below `folder` are private. Returns false if the system does not let this
    /// user mount anything.
    static bool enter(const Url& folder) {
        const auto user = std::to_string(geteuid());
        const auto group = std::to_string(getegid());
        const bool isRoot = geteuid() == 0;
        if (unshare(isRoot ? CLONE_NEWNS : CLONE_NEWNS | CLONE_NEWUSER) != 0) return false;
        if (!isRoot) {
            std::ofstream("/proc/self/setgroups") << "deny";
            std::ofstream("/proc/self/uid_map") << user << ' ' << user << " 1";
            std::ofstream("/proc/self/gid_map") << group << ' ' << group << " 1";
        }
        // Only a mount point can be made private: the folder, or the nearest one above it.
        for (Url place = folder;; place = place.deletingLastPathComponent()) {
            if (mount("none", place.path().c_str(), nullptr, MS_PRIVATE, nullptr) == 0) return true;
            if (place.path() == "/") return false;
        }
    }

    /// Creates `folder` and mounts an empty file system on it.
    static bool mountVolume(const Url& folder, const std::string& options = "size=1m") {
        std::filesystem::create_directories(folder.path());
        return mount("none", folder.path().c_str(), "tmpfs", 0, options.c_str()) == 0;
    }

    /// Makes `folder` another path to `original`.
    static bool bind(const Url& original, const Url& folder) {
        std::filesystem::create_directories(folder.path());
        return mount(original.path().c_str(), folder.path().c_str(), nullptr, MS_BIND, nullptr) ==
               0;
    }

    static bool makeReadOnly(const Url& folder) {
        return mount("none", folder.path().c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) == 0;
    }
};

}  // namespace vantle
