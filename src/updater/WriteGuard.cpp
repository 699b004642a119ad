#include "updater/WriteGuard.h"

#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdint>

#include "support/FileDescriptor.h"

namespace vantle::updater {
namespace {

/// All rights of Landlock's first version that allow changes.
constexpr std::uint64_t writing = LANDLOCK_ACCESS_FS_WRITE_FILE | LANDLOCK_ACCESS_FS_REMOVE_DIR |
                                  LANDLOCK_ACCESS_FS_REMOVE_FILE | LANDLOCK_ACCESS_FS_MAKE_CHAR |
                                  LANDLOCK_ACCESS_FS_MAKE_DIR | LANDLOCK_ACCESS_FS_MAKE_REG |
                                  LANDLOCK_ACCESS_FS_MAKE_SOCK | LANDLOCK_ACCESS_FS_MAKE_FIFO |
                                  LANDLOCK_ACCESS_FS_MAKE_BLOCK | LANDLOCK_ACCESS_FS_MAKE_SYM;

}  // namespace

bool writeOnlyBeneath(const std::filesystem::path& folder) {
    landlock_ruleset_attr rights{};
    rights.handled_access_fs = writing;
    const FileDescriptor rules(static_cast<int>(
        syscall(SYS_landlock_create_ruleset, &rights, sizeof rights.handled_access_fs, 0)));
    const FileDescriptor place(open(folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!rules || !place) return false;
    landlock_path_beneath_attr rule{};
    rule.allowed_access = writing;
    rule.parent_fd = place.get();
    return syscall(SYS_landlock_add_rule, rules.get(), LANDLOCK_RULE_PATH_BENEATH, &rule, 0) == 0 &&
           prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           syscall(SYS_landlock_restrict_self, rules.get(), 0) == 0;
}

}  // namespace vantle::updater
