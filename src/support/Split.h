#pragma once

#include <sstream>
#include <string>
#include <vector>

namespace vantle {

/// Returns the parts of a text between separators, without empty ones.
inline std::vector<std::string> split(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);)
        if (!part.empty()) parts.push_back(part);
    return parts;
}

}  // namespace vantle
