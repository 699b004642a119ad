#pragma once

#include <string_view>

#include "decoder/formats/MediaFile.h"
#include "filetypes/FileTypes.h"

namespace vantle::decoder {

/// Returns a format's module; null if there is none.
using LoadModule = const FormatModule* (*)(Format);

/// Serves files of the named format on `decoderSocket`, in a child process for which nobody has to
/// wait, and gives up all rights before the first file. Returns the exit status. The parent process
/// exits inside this function when the child has started.
int runService(std::string_view formatName, LoadModule load);

}  // namespace vantle::decoder
