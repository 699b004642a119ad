#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "support/Url.h"

namespace vantle {

/// A program that takes files on its command line.
struct FileProgram {
    const char* name;
    const char* option;  ///< What it wants in front of each file; null for nothing.
};

/// How such a program is started.
struct FileCommand {
    std::string program;  ///< An absolute path.
    std::vector<std::string> arguments;
};

/// The command for the first of the programs that is installed (in $PATH); absent when none is.
std::optional<FileCommand> commandFor(std::span<const FileProgram> programs,
                                      const std::vector<Url>& files);

/// The same for anything that such a program takes in the place of a file.
std::optional<FileCommand> commandForArguments(std::span<const FileProgram> programs,
                                               const std::vector<std::string>& arguments);

}  // namespace vantle
