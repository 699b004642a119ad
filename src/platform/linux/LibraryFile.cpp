#include "platform/linux/LibraryFile.h"

#include <dlfcn.h>
#include <unistd.h>

#include <cstddef>
#include <string>
#include <vector>

namespace vantle {

bool isLibraryInstalled(const char* name) {
    void* const program = dlopen(nullptr, RTLD_LAZY);
    Dl_serinfo room{};
    if (dlinfo(program, RTLD_DI_SERINFOSIZE, &room) != 0) return false;
    std::vector<std::max_align_t> memory(room.dls_size / sizeof(std::max_align_t) + 1);
    auto* const folders = reinterpret_cast<Dl_serinfo*>(memory.data());
    folders->dls_size = room.dls_size;
    folders->dls_cnt = room.dls_cnt;
    if (dlinfo(program, RTLD_DI_SERINFO, folders) != 0) return false;
    for (unsigned i = 0; i < folders->dls_cnt; ++i) {
        const std::string folder = folders->dls_serpath[i].dls_name;
        if (access((folder + "/" + name).c_str(), R_OK) == 0) return true;
    }
    return false;
}

}  // namespace vantle
