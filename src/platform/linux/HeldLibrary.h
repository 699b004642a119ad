#pragma once

#include <string>

namespace vantle {

/// A shared library that is loaded later than the program, and is the one that was there when this
/// was made, even when an update has put another into its place by then. Any thread, one at a time.
class HeldLibrary {
public:
    /// Opens the file without loading it.
    explicit HeldLibrary(const std::string& path);
    ~HeldLibrary();
    HeldLibrary(const HeldLibrary&) = delete;
    HeldLibrary& operator=(const HeldLibrary&) = delete;

    /// Whether there is such a file to read.
    bool isThere() const { return file_ >= 0; }

    /// Loads it and what it is linked with, and gives a handle for dlsym() and dlclose(), or null:
    /// then dlerror() says why.
    void* load() const;

private:
    const int file_;
};

}  // namespace vantle
