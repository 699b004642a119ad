#include "support/Utf8.h"

#include <bit>
#include <cstddef>

namespace vantle {
namespace {

constexpr unsigned valueBits = 6;  // of a byte that continues a character

/// Returns how many bytes the first byte says that its character has; 0 if none begins with it.
std::size_t lengthFrom(unsigned char first) {
    const int ones = std::countl_one(first);
    if (ones == 0) return 1;
    return ones >= 2 && ones <= 4 ? static_cast<std::size_t>(ones) : 0;
}

/// The smallest character that needs this many bytes; a longer form of a character is invalid.
char32_t smallestOf(std::size_t length) {
    return length == 4 ? 0x10000 : length == 3 ? 0x800 : length == 2 ? 0x80 : 0;
}

bool isCharacter(char32_t value) {
    const bool isSurrogate = value >= 0xD800 && value <= 0xDFFF;
    return value <= 0x10FFFF && !isSurrogate;
}

}  // namespace

std::optional<char32_t> takeCharacter(std::string_view& rest) {
    const std::string_view text = rest;
    rest.remove_prefix(1);
    const auto first = static_cast<unsigned char>(text[0]);
    const std::size_t length = lengthFrom(first);
    if (length == 0 || length > text.size()) return std::nullopt;
    char32_t value = length == 1 ? first : first & (0x7FU >> length);
    for (const char next : text.substr(1, length - 1)) {
        const auto byte = static_cast<unsigned char>(next);
        if (std::countl_one(byte) != 1) return std::nullopt;
        value = (value << valueBits) | (byte & 0x3FU);
    }
    if (value < smallestOf(length) || !isCharacter(value)) return std::nullopt;
    rest = text.substr(length);
    return value;
}

}  // namespace vantle
