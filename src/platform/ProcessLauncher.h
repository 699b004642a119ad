#pragma once

#include <string>
#include <vector>

#include "support/Result.h"

namespace vantle {

/// Starts other programs.
class ProcessLauncher {
public:
    virtual ~ProcessLauncher() = default;

    /// Starts `executable` (an absolute path) with `arguments` and does not wait for it: it
    /// outlives this program, has no standard input or output of ours, and leaves nothing behind
    /// to collect. Fails with the system's error number when it cannot be started. Any thread.
    virtual Outcome launch(const std::string& executable,
                           const std::vector<std::string>& arguments) = 0;
};

}  // namespace vantle
