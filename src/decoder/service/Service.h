#pragma once

#include <string_view>

#include "decoder/formats/MediaFile.h"
#include "filetypes/FileTypes.h"

namespace vantle::decoder {

/// Gives a format's module, or null when there is none.
using LoadModule = const FormatModule* (*)(Format);

/// Serves files of the format of that name on `decoderSocket`: in a child process, which nobody has
/// to collect, with all rights given up before the first file. Gives the exit status, of both.
int runService(std::string_view formatName, LoadModule load);

}  // namespace vantle::decoder
