#pragma once

#include "platform/ProcessLauncher.h"

namespace vantle {

class PosixProcessLauncher final : public ProcessLauncher {
public:
    Outcome launch(const std::string& executable,
                   const std::vector<std::string>& arguments) override;
};

}  // namespace vantle
