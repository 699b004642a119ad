#pragma once

#include <compare>
#include <string_view>

namespace vantle {

/// Which of two versions is the newer one. They are compared part by part, where a part is a run
/// of digits or of letters: numbers by their value, of any length, letters as they are. A missing
/// number is 0, and letters come before what has none: 1.0b2 < 1.0b10 < 1.0 == 1.0.0 < 1.0.1.
/// What is neither a digit nor a letter only separates.
std::weak_ordering compareVersions(std::string_view left, std::string_view right);

}  // namespace vantle
