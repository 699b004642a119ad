#pragma once

#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "support/Url.h"

namespace vantle {

inline void writeText(const Url& file, std::string_view text) {
    std::ofstream(file.path(), std::ios::binary) << text;
}

/// Returns the contents of a file, or an empty string if it does not exist.
inline std::string readText(const Url& file) {
    std::ifstream stream(file.path(), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

}  // namespace vantle
