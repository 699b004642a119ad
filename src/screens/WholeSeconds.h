#pragma once

#include <string>

namespace vantle {

/// Returns a number of seconds as text, without its fraction. Accepts any number; NaN becomes "0".
std::string wholeSeconds(double seconds);

}  // namespace vantle
