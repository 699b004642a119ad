#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstddef>

#include "decoder/confinement/Confinement.h"
#include "support/FileDescriptor.h"

namespace vantle::decoder {
namespace {

/// The landlock_ruleset_attr of version 6; the kernel headers at build time may be older.
struct Rights {
    std::uint64_t files;
    std::uint64_t network;
    std::uint64_t scopes;
};

/// Returns all rights that this version of Landlock can take away.
Rights rightsOf(long version) {
    constexpr std::uint64_t always = (1U << 13) - 1;
    constexpr std::uint64_t refer = 1U << 13;          // since version 2
    constexpr std::uint64_t truncate = 1U << 14;       // since version 3
    constexpr std::uint64_t deviceControl = 1U << 15;  // since version 5
    constexpr std::uint64_t bindAndConnect = 3;        // since version 4
    constexpr std::uint64_t socketsAndSignals = 3;     // since version 6
    return {always | (version >= 2 ? refer : 0) | (version >= 3 ? truncate : 0) |
                (version >= 5 ? deviceControl : 0),
            version >= 4 ? bindAndConnect : 0, version >= 6 ? socketsAndSignals : 0};
}

/// Returns how many bytes of Rights this version of Landlock has. A kernel refuses a longer
/// structure unless the rest is zero.
constexpr std::size_t sizeFor(long version) {
    return version >= 6 ? sizeof(Rights) : version >= 4 ? 16 : 8;
}

/// Ignores a file that does not exist.
void allowReading(int ruleset, const std::string& path) {
    const FileDescriptor file(open(path.c_str(), O_PATH | O_CLOEXEC));
    if (!file) return;
    landlock_path_beneath_attr rule{};
    rule.allowed_access = LANDLOCK_ACCESS_FS_READ_FILE;
    rule.parent_fd = file.get();
    syscall(SYS_landlock_add_rule, ruleset, LANDLOCK_RULE_PATH_BENEATH, &rule, 0);
}

}  // namespace

bool giveUpFileSystem(std::span<const std::string> readable) {
    const long version =
        syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    if (version < 1) return false;
    const Rights rights = rightsOf(version);
    // The ruleset refuses everything that no rule allows.
    const FileDescriptor ruleset(
        static_cast<int>(syscall(SYS_landlock_create_ruleset, &rights, sizeFor(version), 0)));
    if (!ruleset) return false;
    for (const auto& path : readable) allowReading(ruleset.get(), path);
    return syscall(SYS_landlock_restrict_self, ruleset.get(), 0) == 0;
}

}  // namespace vantle::decoder
