#pragma once

#include <string>
#include <vector>

namespace vantle::decoder {

/// Chooses the few fonts that stand in for those which a document does not bring with it, and makes
/// them all that the process knows of. Gives their paths: they are read when they are needed.
std::vector<std::string> usePdfFonts();

}  // namespace vantle::decoder
