#pragma once

#include <dirent.h>

#include <memory>

namespace vantle {

struct DirectoryCloser {
    void operator()(DIR* directory) const { closedir(directory); }
};

/// Owns a stream of opendir().
using DirectoryStream = std::unique_ptr<DIR, DirectoryCloser>;

}  // namespace vantle
