#pragma once

namespace vantle {

/// Returns a letter from A to Z in lowercase, and any other character as it is.
constexpr char lowercase(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                                : character;
}

}  // namespace vantle
