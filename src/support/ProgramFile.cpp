#include "support/ProgramFile.h"

#include <system_error>

namespace vantle {

std::filesystem::path programFile() {
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error);
}

}  // namespace vantle
