#pragma once

#include <optional>

#include "decoder/formats/InputFile.h"
#include "filetypes/FileTypes.h"

namespace vantle::decoder {

/// Returns the format that a file's first bytes show, whatever its name says; std::nullopt if they
/// show none.
std::optional<Format> formatOf(const InputFile& file);

}  // namespace vantle::decoder
