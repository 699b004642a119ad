#pragma once

#include <span>

namespace vantle::decoder {

/// Makes the thumbnail of one file for a person or a script, through a confined decoder as the
/// program does. Gives the exit status: 0, 1 when the file has no picture, 2 for wrong arguments.
int runCommandLine(std::span<char*> arguments);

}  // namespace vantle::decoder
