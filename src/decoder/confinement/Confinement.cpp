#include "decoder/confinement/Confinement.h"

#include <sys/prctl.h>

#include "decoder/protocol/Messages.h"

namespace vantle::decoder {

std::uint32_t confine(std::span<const std::string> readable, ResourceLimits limits) {
    limitResources(limits);
    // Both guards below require this: a program that is started cannot gain rights.
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    prctl(PR_SET_DUMPABLE, 0);
    std::uint32_t missing = 0;
    const bool hasNoFiles = giveUpFileSystem(readable);
    if (!hasNoFiles) missing |= static_cast<std::uint32_t>(Guard::fileSystem);
    if (!giveUpSystemCalls(hasNoFiles ? FileOpening::guarded : FileOpening::refused))
        missing |= static_cast<std::uint32_t>(Guard::systemCalls);
    return missing;
}

}  // namespace vantle::decoder
