#pragma once

#include <string>

namespace vantle {

/// Returns another program's translation of `text` into the user's language ($LANGUAGE, $LC_ALL,
/// $LC_MESSAGES, $LANG), from the system's catalogue `domain`. UTF-8. `context` is the context of
/// the entry in that catalogue, empty if it has none. Returns `text` if there is no such language,
/// catalogue or entry. Main thread only.
std::string translated(const std::string& domain, const std::string& text,
                       const std::string& context = {});

}  // namespace vantle
