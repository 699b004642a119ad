#pragma once

#include <cstring>
#include <string>

#include "support/Result.h"

namespace vantle {

/// The failure that the error number `error` stands for.
inline Failure systemFailure(int error, const std::string& path = {}) {
    char buffer[256] = "";
    // The GNU form: the text may be elsewhere than in the buffer.
    return Failure{error, strerror_r(error, buffer, sizeof buffer), path};
}

}  // namespace vantle
