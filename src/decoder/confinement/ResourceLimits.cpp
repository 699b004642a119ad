#include <sys/resource.h>

#include "decoder/confinement/Confinement.h"
#include "decoder/protocol/Messages.h"

namespace vantle::decoder {
namespace {

// The sanitizers' shadow memory is larger than any limit.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr rlim_t memory = RLIM_INFINITY;
#else
constexpr rlim_t memory = rlim_t{2} * 1024 * 1024 * 1024;
#endif

// Enough for a burst of the largest pictures. A decoder that uses it up is replaced by a new one.
constexpr rlim_t processorSeconds = 60;
constexpr rlim_t descriptors = 64;

void limit(int resource, rlim_t value) {
    const rlimit both{value, value};
    // This fails if the hard limit is already lower; the lower limit then stays in force.
    setrlimit(static_cast<__rlimit_resource_t>(resource), &both);
}

}  // namespace

void limitResources() {
    limit(RLIMIT_AS, memory);
    limit(RLIMIT_CPU, processorSeconds);
    limit(RLIMIT_FSIZE, static_cast<rlim_t>(maximumPictureBytes));
    limit(RLIMIT_NOFILE, descriptors);
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_MEMLOCK, 0);
    limit(RLIMIT_MSGQUEUE, 0);
}

}  // namespace vantle::decoder
