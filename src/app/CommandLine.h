#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/Application.h"
#include "support/Url.h"

namespace vantle {

/// A command line and what it requests.
struct CommandLine {
    enum class Kind {
        start,  ///< Runs the program, and performs `request`, if any, here or in the running copy.
        sendRequest,  ///< Has the running copy perform `request`, which fails if there is none.
        print,        ///< Prints `text`.
        invalid,      ///< The arguments are not valid; `text` says why.
    };

    Kind kind = Kind::start;
    std::optional<ApplicationRequest> request;
    std::string text;
    bool launchedByDesktop = false;  ///< The desktop delivers a request after the start.
};

/// Parses the arguments (without the program's name). Relative paths start at `folder`.
CommandLine parseCommandLine(const std::vector<std::string>& arguments, const Url& folder);

/// Returns the text that --help prints.
std::string helpText();

}  // namespace vantle
