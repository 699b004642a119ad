#pragma once

#include <string>

#include "support/Image.h"

namespace vantle::decoder {

/// Writes an image to a file, replacing what was there. False, with errno set, when it cannot.
bool writePng(const Image& image, const std::string& path);

}  // namespace vantle::decoder
