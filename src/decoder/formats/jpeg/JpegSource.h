#pragma once

// jpeglib.h needs the headers before it.
// clang-format off
#include <cstddef>
#include <cstdio>
#include <jpeglib.h>
// clang-format on

#include <csetjmp>

#include "decoder/formats/InputFile.h"

namespace vantle::decoder {

/// Handles libjpeg's errors: libjpeg leaves its functions by a jump to `jump`.
struct JpegErrors : jpeg_error_mgr {
    JpegErrors();
    jmp_buf jump{};
    bool isDamaged = false;  ///< Data were missing, and libjpeg filled the gap.
};

/// Feeds a file to libjpeg.
struct JpegSource : jpeg_source_mgr {
    explicit JpegSource(const InputFile& file);
    InputStream stream;
    bool hasEnded = false;  ///< The file was too short.
};

}  // namespace vantle::decoder
