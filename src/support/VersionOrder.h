#pragma once

#include <compare>
#include <string_view>

namespace vantle {

/// Compares two versions; the newer one is the greater one. A part is a run of digits or of
/// letters. Numbers of any length are compared by value, letters by character code. A missing
/// number is 0, and letters come before a number or the end: 1.0b2 < 1.0b10 < 1.0 == 1.0.0 < 1.0.1.
/// All other characters only separate parts.
std::weak_ordering compareVersions(std::string_view left, std::string_view right);

}  // namespace vantle
