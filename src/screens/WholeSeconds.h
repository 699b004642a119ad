#pragma once

#include <string>

namespace vantle {

/// A number of seconds for a person, without its fraction. Any number, also one that no clock
/// would show.
std::string wholeSeconds(double seconds);

}  // namespace vantle
