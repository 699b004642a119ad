#pragma once

#include <string>
#include <system_error>

#include "support/Result.h"

namespace vantle {

/// Returns the failure for the error number `error`.
inline Failure systemFailure(int error, const std::string& path = {}) {
    return Failure{error, std::generic_category().message(error), path};
}

}  // namespace vantle
