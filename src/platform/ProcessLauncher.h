#pragma once

#include <string>
#include <vector>

#include "support/Result.h"

namespace vantle {

/// Starts other programs.
class ProcessLauncher {
public:
    virtual ~ProcessLauncher() = default;

    /// Starts `executable` (an absolute path) with `arguments` and does not wait for it. The
    /// program outlives this one, does not share its standard input or output, and leaves no
    /// process to collect. Fails with the system's error number if it cannot be started. Any
    /// thread.
    virtual Outcome launch(const std::string& executable,
                           const std::vector<std::string>& arguments) = 0;
};

}  // namespace vantle
