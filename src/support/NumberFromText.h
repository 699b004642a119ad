#pragma once

#include <optional>
#include <string_view>

namespace vantle {

/// Returns the finite number that the whole text represents, in the notation of programs ("0.5")
/// whatever the user's language is; std::nullopt if it does not represent one.
std::optional<double> numberFromText(std::string_view text);

}  // namespace vantle
