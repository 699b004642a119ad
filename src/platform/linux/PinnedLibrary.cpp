#include "platform/linux/PinnedLibrary.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

namespace vantle {

PinnedLibrary::PinnedLibrary(const std::string& path)
    : file_(open(path.c_str(), O_RDONLY | O_CLOEXEC)) {}

PinnedLibrary::~PinnedLibrary() {
    if (exists()) close(file_);
}

void* PinnedLibrary::load() const {
    const std::string path = "/proc/self/fd/" + std::to_string(file_);
    return dlopen(path.c_str(), RTLD_LAZY | RTLD_LOCAL);
}

}  // namespace vantle
