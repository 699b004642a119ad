#pragma once

#include <optional>
#include <string_view>

namespace vantle {

/// The finite number that the whole text is, in the notation of programs ("0.5") whatever the
/// user's language is.
std::optional<double> numberFromText(std::string_view text);

}  // namespace vantle
