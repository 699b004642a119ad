#include "platform/linux/HeldLibrary.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

namespace vantle {

HeldLibrary::HeldLibrary(const std::string& path)
    : file_(open(path.c_str(), O_RDONLY | O_CLOEXEC)) {}

HeldLibrary::~HeldLibrary() {
    if (isThere()) close(file_);
}

void* HeldLibrary::load() const {
    const std::string path = "/proc/self/fd/" + std::to_string(file_);
    return dlopen(path.c_str(), RTLD_LAZY | RTLD_LOCAL);
}

}  // namespace vantle
