#include <sys/resource.h>

#include "decoder/confinement/Confinement.h"
#include "decoder/protocol/Messages.h"

namespace vantle::decoder {
namespace {

// The sanitizers' shadow memory is larger than any limit.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool limitsMemory = false;
#else
constexpr bool limitsMemory = true;
#endif

constexpr rlim_t descriptors = 64;

void limit(int resource, rlim_t value) {
    const rlimit both{value, value};
    // This fails if the hard limit is already lower; the lower limit then stays in force.
    setrlimit(static_cast<__rlimit_resource_t>(resource), &both);
}

}  // namespace

void limitResources(ResourceLimits limits) {
    if (limitsMemory) limit(RLIMIT_AS, static_cast<rlim_t>(limits.memory));
    limit(RLIMIT_CPU, static_cast<rlim_t>(limits.processorSeconds));
    limit(RLIMIT_FSIZE, static_cast<rlim_t>(maximumPictureBytes));
    limit(RLIMIT_NOFILE, descriptors);
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_MEMLOCK, 0);
    limit(RLIMIT_MSGQUEUE, 0);
}

}  // namespace vantle::decoder
