#pragma once

#include <string>

namespace vantle {

/// The name of a file as it is shown: nothing in it can change the line, or hide how it ends.
/// Control characters show as their pictures. What turns the direction of writing around, so that
/// "gnp.exe" would read "exe.png", and what ends a line show as a character that is not known.
/// UTF-8; bytes that are none stay as they are.
std::string displayName(const std::string& name);

}  // namespace vantle
