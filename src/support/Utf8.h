#pragma once

#include <optional>
#include <string_view>

namespace vantle {

/// Removes the first character from `rest`, which must not be empty, and returns it. If `rest` does
/// not begin with valid UTF-8, removes one byte and returns nothing.
std::optional<char32_t> takeCharacter(std::string_view& rest);

}  // namespace vantle
