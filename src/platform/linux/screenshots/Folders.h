#pragma once

#include <filesystem>
#include <system_error>

#include "support/Url.h"

namespace vantle {

inline bool isFolder(const Url& url) {
    std::error_code error;
    return std::filesystem::is_directory(url.path(), error);
}

inline bool isFile(const Url& url) {
    std::error_code error;
    return std::filesystem::is_regular_file(url.path(), error);
}

/// Creates the folder and its missing parents. Returns true if it exists afterwards.
inline bool makeFolder(const Url& url) {
    std::error_code error;
    std::filesystem::create_directories(url.path(), error);
    return isFolder(url);
}

}  // namespace vantle
