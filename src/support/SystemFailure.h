#pragma once

#include <string>
#include <system_error>

#include "support/Result.h"

namespace vantle {

/// The failure that the error number `error` stands for.
inline Failure systemFailure(int error, const std::string& path = {}) {
    return Failure{error, std::generic_category().message(error), path};
}

}  // namespace vantle
