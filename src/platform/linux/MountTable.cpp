#include "platform/linux/MountTable.h"

#include <mntent.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string_view>
#include <system_error>

namespace vantle {
namespace {

namespace fs = std::filesystem;

constexpr int maximumLinks = 40;  // the kernel's own limit

/// Returns true for file systems that a server or a program serves. "fuseblk" is not one of them:
/// its data is on a local disk.
bool isRemoteType(std::string_view type) {
    constexpr std::array types{"nfs", "nfs4",  "cifs", "smb3", "smbfs",  "9p",
                               "afs", "ncpfs", "ceph", "coda", "autofs", "fuse"};
    for (const std::string_view remote : types)
        if (type == remote) return true;
    return type.starts_with("fuse.");
}

/// Calls `take` with the mount point and the type of each line, in order.
template <typename Take>
void readTable(const std::string& file, Take take) {
    const std::unique_ptr<FILE, int (*)(FILE*)> table(setmntent(file.c_str(), "re"), endmntent);
    if (!table) return;
    mntent entry{};
    std::array<char, std::size_t{16} * 1024> buffer{};
    while (getmntent_r(table.get(), &entry, buffer.data(), static_cast<int>(buffer.size())))
        if (entry.mnt_dir[0] == '/') take(Url::file(entry.mnt_dir).path(), entry.mnt_type);
}

}  // namespace

MountTable::MountTable(const MountFiles& files) {
    readTable(files.expected,
              [this](const std::string& point, const char*) { points_[point] = Kind::unmounted; });
    // A file system that is mounted later hides an earlier one at the same place.
    readTable(files.present, [this](const std::string& point, const char* type) {
        points_[point] = isRemoteType(type) ? Kind::remote : Kind::local;
    });
}

bool MountTable::isUnmounted(const Url& url) const {
    return kindOfTarget(url) == Kind::unmounted;
}

bool MountTable::isRemote(const Url& url) const {
    return kindOfTarget(url) == Kind::remote;
}

MountTable::Kind MountTable::kindOf(const std::string& path) const {
    for (Url place = Url::file(path);; place = place.deletingLastPathComponent()) {
        const auto found = points_.find(place.path());
        if (found != points_.end()) return found->second;
        if (place.path() == "/") return Kind::local;
    }
}

MountTable::Kind MountTable::kindOfTarget(const Url& url) const {
    fs::path place = "/";
    fs::path ahead = fs::path(url.path()).relative_path();
    int links = 0;
    while (!ahead.empty() && kindOf(place) == Kind::local) {
        const fs::path next = place / *ahead.begin();
        ahead = ahead.lexically_relative(*ahead.begin());
        if (ahead == ".") ahead.clear();
        std::error_code noLink;
        const fs::path target =
            kindOf(next) == Kind::local ? fs::read_symlink(next, noLink) : fs::path();
        if (target.empty() || ++links > maximumLinks) {
            place = next;
            continue;
        }
        const fs::path whole = (place / target / ahead).lexically_normal();
        place = "/";
        ahead = whole.relative_path();
    }
    return kindOf(place);
}

}  // namespace vantle
