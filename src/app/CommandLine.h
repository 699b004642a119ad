#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/Application.h"
#include "support/Url.h"

namespace vantle {

/// What the program was started for.
struct CommandLine {
    enum class Kind {
        start,  ///< To run: does `request`, if there is one, by itself or by the copy that runs.
        ask,    ///< To have `request` done by the copy that runs; nothing to do without one.
        print,  ///< To print `text`.
        wrong,  ///< It cannot be made out; `text` says why.
    };

    Kind kind = Kind::start;
    std::optional<ApplicationRequest> request;
    std::string text;
    bool launchedByDesktop = false;  ///< For a request that the desktop is going to deliver.
};

/// Makes out the arguments (without the program's name). Relative paths count from `folder`.
CommandLine parseCommandLine(const std::vector<std::string>& arguments, const Url& folder);

/// What the program prints when it is asked for help.
std::string helpText();

}  // namespace vantle
