#pragma once

namespace vantle {

/// Of the letters that names of file formats are written in; any other character as it is.
constexpr char lowercase(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                                : character;
}

}  // namespace vantle
