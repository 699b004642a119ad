#pragma once

#include <filesystem>

namespace vantle {

/// Returns the path of the running program's file, with links resolved; empty if it is unknown.
/// Another file may be at that path by now.
std::filesystem::path programFile();

}  // namespace vantle
