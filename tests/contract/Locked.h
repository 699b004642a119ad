#pragma once

#include <sys/fsuid.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "support/Url.h"

namespace vantle {

/// Reduces the permissions of a file or folder during its lifetime. Meanwhile this thread accesses
/// files as an ordinary user, who owns the file: root may do everything, so a test would prove
/// nothing.
class Locked {
public:
    Locked(const Url& file, std::filesystem::perms kept) : path_(file.path()) {
        std::filesystem::permissions(path_, kept);
        if (geteuid() != 0) return;
        hasChangedUser_ = chown(path_.c_str(), nobody, nobody) == 0;
        setfsuid(nobody);
    }
    ~Locked() {
        setfsuid(geteuid());
        if (hasChangedUser_) (void)!chown(path_.c_str(), geteuid(), getegid());
        std::filesystem::permissions(path_, std::filesystem::perms::owner_all);
    }
    Locked(const Locked&) = delete;
    Locked& operator=(const Locked&) = delete;

private:
    static constexpr uid_t nobody = 65534;

    std::string path_;
    bool hasChangedUser_ = false;
};

}  // namespace vantle
