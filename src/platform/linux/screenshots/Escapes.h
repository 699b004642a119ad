#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "support/Environment.h"

namespace vantle {

/// The text that a value in a settings file of KDE or Xfce stands for: \s \t \n \r \\ and \xHH are
/// escapes, other backslashes stand for themselves.
std::string fromBackslashEscapes(std::string_view written);

/// The text that a value in a settings file of Qt stands for, as Qt 5 writes it (everything beyond
/// ASCII in \x escapes of UTF-16) or Qt 6 (plain UTF-8).
std::string fromQtEscapes(std::string_view written);

/// The same backwards, in ASCII, which Qt 5 and Qt 6 both read. Absent when it is not UTF-8.
std::optional<std::string> toQtEscapes(std::string_view text);

/// `text` with $NAME and ${NAME} replaced by the variables' values; by nothing where there is none.
std::string expandingVariables(std::string_view text, const Environment& environment);

}  // namespace vantle
