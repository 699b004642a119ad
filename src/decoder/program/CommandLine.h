#pragma once

#include <span>

namespace vantle::decoder {

/// Makes the thumbnail of one file for a person or a script, with a confined decoder as Vantle
/// does. Returns the exit status: 0, 1 if no thumbnail could be made or written, 2 for wrong
/// arguments.
int runCommandLine(std::span<char*> arguments);

}  // namespace vantle::decoder
