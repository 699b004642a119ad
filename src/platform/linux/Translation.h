#pragma once

#include <string>

namespace vantle {

/// What another program says for `text` in the user's language ($LANGUAGE, $LC_ALL,
/// $LC_MESSAGES, $LANG), by the catalogue that the system holds under the name `domain`. UTF-8.
/// `context` is what that program tells its translators of the text, as far as it tells the entry
/// from others. `text` itself where there is no such language, catalogue or entry. Main thread
/// only.
std::string translated(const std::string& domain, const std::string& text,
                       const std::string& context = {});

}  // namespace vantle
