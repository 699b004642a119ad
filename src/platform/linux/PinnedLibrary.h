#pragma once

#include <string>

namespace vantle {

/// A shared library that is loaded later than the program. Always loads the file that existed when
/// this object was created, even if an update has replaced it since. Any thread, one at a time.
class PinnedLibrary {
public:
    /// Opens the file without loading it.
    explicit PinnedLibrary(const std::string& path);
    ~PinnedLibrary();
    PinnedLibrary(const PinnedLibrary&) = delete;
    PinnedLibrary& operator=(const PinnedLibrary&) = delete;

    /// Returns true if the file exists and can be read.
    bool exists() const { return file_ >= 0; }

    /// Loads the library and its dependencies. Returns a handle for dlsym() and dlclose(), or null
    /// if it fails; dlerror() then returns the reason.
    void* load() const;

private:
    const int file_;
};

}  // namespace vantle
