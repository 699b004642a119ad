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
    const char* option;  ///< The option in front of each file; null for none.
};

/// The command that starts such a program.
struct FileCommand {
    std::string program;  ///< An absolute path.
    std::vector<std::string> arguments;
};

/// Returns the command for the first program that is installed (in $PATH), or nothing if none is.
std::optional<FileCommand> commandFor(std::span<const FileProgram> programs,
                                      const std::vector<Url>& files);

/// Like commandFor(), for arguments that need not be files.
std::optional<FileCommand> commandForArguments(std::span<const FileProgram> programs,
                                               const std::vector<std::string>& arguments);

}  // namespace vantle
