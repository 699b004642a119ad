#pragma once

#include <string>
#include <variant>

namespace vantle {

/// A stored setting, with its type.
using PreferenceValue = std::variant<bool, double, std::string>;

}  // namespace vantle
