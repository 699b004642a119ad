#pragma once

#include <string>

#include "support/Image.h"

namespace vantle::decoder {

/// Writes an image to a file and replaces an existing one. Returns false and sets errno on failure.
bool writePng(const Image& image, const std::string& path);

}  // namespace vantle::decoder
