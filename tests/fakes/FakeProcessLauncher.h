#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/ProcessLauncher.h"

namespace vantle::fakes {

/// Records the processes that would have been started.
class FakeProcessLauncher final : public ProcessLauncher {
public:
    struct Launch {
        std::string executable;
        std::vector<std::string> arguments;
    };

    Outcome launch(const std::string& executable,
                   const std::vector<std::string>& arguments) override {
        launched.push_back({executable, arguments});
        return failure;
    }

    std::vector<Launch> launched;
    Outcome failure;
};

}  // namespace vantle::fakes
