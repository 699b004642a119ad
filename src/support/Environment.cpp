#include "support/Environment.h"

#include <cstdlib>

namespace vantle {

Environment processEnvironment() {
    return [](const std::string& name) -> std::optional<std::string> {
        const char* value = std::getenv(name.c_str());
        if (!value) return std::nullopt;
        return value;
    };
}

}  // namespace vantle
