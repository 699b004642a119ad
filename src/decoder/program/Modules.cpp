#include "decoder/program/Modules.h"

#include <dlfcn.h>

#include <filesystem>
#include <string>

#include "support/ProgramFile.h"
#include "support/SystemLog.h"

namespace vantle::decoder {

const FormatModule* loadModule(Format format) {
    const auto file = programFile().parent_path().parent_path() / "lib/vantle/modules" /
                      ("vantle-decoder-" + std::string(formatName(format)) + ".so");
    void* library = dlopen(file.c_str(), RTLD_LAZY | RTLD_LOCAL);
    const auto entry =
        library ? reinterpret_cast<ModuleEntry>(dlsym(library, moduleEntry)) : nullptr;
    if (!entry) {
        systemLog("Decoder: cannot load the module " + std::string(formatName(format)) + ": " +
                  dlerror());
        return nullptr;
    }
    return entry();
}

}  // namespace vantle::decoder
