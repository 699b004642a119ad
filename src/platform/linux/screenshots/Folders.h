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

/// With the folders around it. Whether it is there then.
inline bool makeFolder(const Url& url) {
    std::error_code error;
    std::filesystem::create_directories(url.path(), error);
    return isFolder(url);
}

}  // namespace vantle
