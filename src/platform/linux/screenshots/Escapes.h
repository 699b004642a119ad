#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "support/Environment.h"

namespace vantle {

/// Returns the text of a value in a settings file of KDE or Xfce: \s \t \n \r \\ and \xHH are
/// escapes, other backslashes are literal.
std::string fromBackslashEscapes(std::string_view written);

/// Returns the text of a value in a settings file of Qt, as written by Qt 5 (everything beyond
/// ASCII as \x escapes of UTF-16) or by Qt 6 (plain UTF-8).
std::string fromQtEscapes(std::string_view written);

/// Returns the value for a text in ASCII, which both Qt 5 and Qt 6 read. Returns nothing if the
/// text is not UTF-8.
std::optional<std::string> toQtEscapes(std::string_view text);

/// Returns `text` with $NAME and ${NAME} replaced by the variables' values, and with variables that
/// are not set removed.
std::string expandingVariables(std::string_view text, const Environment& environment);

}  // namespace vantle
