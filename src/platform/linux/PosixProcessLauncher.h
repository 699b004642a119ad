#pragma once

#include <utility>

#include "platform/ProcessLauncher.h"

namespace vantle {

class PosixProcessLauncher final : public ProcessLauncher {
public:
    /// Programs get this process's environment without the variables named in `withheld`.
    explicit PosixProcessLauncher(std::vector<std::string> withheld = {})
        : withheld_(std::move(withheld)) {}

    Outcome launch(const std::string& executable,
                   const std::vector<std::string>& arguments) override;

private:
    const std::vector<std::string> withheld_;
};

}  // namespace vantle
