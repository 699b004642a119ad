#pragma once

#include <string>
#include <vector>

namespace vantle::decoder {

/// Chooses the few fonts that replace those a document does not embed, and makes them the only
/// fonts of this process. Returns their paths, because the files are read when they are needed.
std::vector<std::string> usePdfFonts();

}  // namespace vantle::decoder
