#pragma once

// jpeglib.h needs what stands before it.
// clang-format off
#include <cstddef>
#include <cstdio>
#include <jpeglib.h>
// clang-format on

#include <csetjmp>

#include "decoder/formats/InputFile.h"

namespace vantle::decoder {

/// How libjpeg tells what is wrong: it jumps out of whatever it was doing, to `jump`.
struct JpegErrors : jpeg_error_mgr {
    JpegErrors();
    jmp_buf jump{};
    bool isDamaged = false;  ///< Something was missing, and libjpeg filled it up.
};

/// Feeds a file to libjpeg.
struct JpegSource : jpeg_source_mgr {
    explicit JpegSource(const InputFile& file);
    InputStream stream;
    bool hasEnded = false;  ///< The file was too short.
};

}  // namespace vantle::decoder
