#pragma once

#include "decoder/formats/MediaFile.h"
#include "filetypes/FileTypes.h"

namespace vantle::decoder {

/// Loads the module of one format from lib/vantle/modules beside this program's folder. Returns
/// null and writes to the system log if it cannot be loaded. The module stays loaded.
const FormatModule* loadModule(Format format);

}  // namespace vantle::decoder
