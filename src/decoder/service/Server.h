#pragma once

#include "decoder/formats/MediaFile.h"
#include "filetypes/FileTypes.h"

namespace vantle::decoder {

/// Answers requests on `socket` until the other end closes it or sends nothing for
/// `decoderTimeout`.
void serve(int socket, Format format, const FormatModule& module);

}  // namespace vantle::decoder
