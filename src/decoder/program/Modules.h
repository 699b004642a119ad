#pragma once

#include "decoder/formats/MediaFile.h"
#include "filetypes/FileTypes.h"

namespace vantle::decoder {

/// Loads the module of one format, which stands in lib/vantle/modules beside this program's folder.
/// Null, and a line on standard error, when it cannot be loaded. It stays loaded.
const FormatModule* loadModule(Format format);

}  // namespace vantle::decoder
