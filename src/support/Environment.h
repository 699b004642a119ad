#pragma once

#include <functional>
#include <optional>
#include <string>

namespace vantle {

/// Looks a variable up in the process environment: absent when it is not set, empty text when it
/// is set to nothing.
using Environment = std::function<std::optional<std::string>(const std::string& name)>;

/// The real one.
Environment processEnvironment();

}  // namespace vantle
