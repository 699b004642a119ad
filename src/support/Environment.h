#pragma once

#include <functional>
#include <optional>
#include <string>

namespace vantle {

/// Looks up a variable in the process environment. Returns std::nullopt if it is not set, and an
/// empty text if it is set to nothing.
using Environment = std::function<std::optional<std::string>(const std::string& name)>;

/// Returns the real environment.
Environment processEnvironment();

}  // namespace vantle
