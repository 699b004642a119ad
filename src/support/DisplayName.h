#pragma once

#include <string>

namespace vantle {

/// Returns a file's name for display, in which nothing can break the line or disguise the
/// extension. Control characters become visible symbols. Characters that reverse the direction of
/// writing, so that "gnp.exe" would read "exe.png", and characters that end a line become the
/// replacement character (U+FFFD). UTF-8; invalid bytes stay as they are.
std::string displayName(const std::string& name);

}  // namespace vantle
