#pragma once

#include <filesystem>

namespace vantle {

/// The file of the program that runs, links followed; empty where that cannot be had. Another file
/// may stand at its path by now.
std::filesystem::path programFile();

}  // namespace vantle
