#pragma once

#include <span>

namespace vantle::reader {

/// Prints the text in one picture for a person or a script, with a confined reader as Vantle does.
/// Returns the exit status: 0, 1 if the text could not be read, 2 for wrong arguments.
int runCommandLine(std::span<char*> arguments);

}  // namespace vantle::reader
