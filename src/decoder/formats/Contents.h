#pragma once

#include <optional>

#include "decoder/formats/InputFile.h"
#include "filetypes/FileTypes.h"

namespace vantle::decoder {

/// The format that a file's first bytes tell, whatever its name says.
std::optional<Format> formatOf(const InputFile& file);

}  // namespace vantle::decoder
