#pragma once

#include <cstddef>
#include <string_view>

namespace vantle {

/// Returns how many words the UTF-8 text has. Words are separated by white space; a run of signs
/// without a letter or a digit is none ("— 3 |" has one word). In scripts that are written without
/// spaces (Chinese, Japanese), each character counts as a word, as word processors count. Bytes
/// that are not UTF-8 count as signs.
std::size_t countOfWords(std::string_view text);

}  // namespace vantle
