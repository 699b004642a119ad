#include "support/WordCount.h"

#include <algorithm>
#include <array>

#include "support/Utf8.h"

namespace vantle {
namespace {

struct Range {
    char32_t first;
    char32_t last;
};

template <std::size_t count>
bool isIn(const std::array<Range, count>& ranges, char32_t character) {
    return std::ranges::any_of(ranges, [character](const Range& range) {
        return character >= range.first && character <= range.last;
    });
}

constexpr std::array<Range, 8> spaces{{{0x09, 0x0D},
                                       {0x20, 0x20},
                                       {0x85, 0x85},
                                       {0xA0, 0xA0},
                                       {0x2000, 0x200B},
                                       {0x2028, 0x2029},
                                       {0x202F, 0x202F},
                                       {0x3000, 0x3000}}};

/// Punctuation and symbols, in ASCII and in the blocks that hold nothing else.
constexpr std::array<Range, 17> signs{{{0x00, 0x2F},
                                       {0x3A, 0x40},
                                       {0x5B, 0x60},
                                       {0x7B, 0xA9},
                                       {0xAB, 0xB4},
                                       {0xB6, 0xB9},
                                       {0xBB, 0xBF},
                                       {0xD7, 0xD7},
                                       {0xF7, 0xF7},
                                       {0x2010, 0x206F},
                                       {0x20A0, 0x20CF},
                                       {0x2190, 0x2BFF},
                                       {0x3001, 0x3004},
                                       {0x3008, 0x3020},
                                       {0x30FB, 0x30FB},
                                       {0xFF01, 0xFF0F},
                                       {0xFF1A, 0xFF20}}};

/// Scripts that are written without spaces: kana and the characters of Chinese.
constexpr std::array<Range, 8> unspaced{{{0x3005, 0x3007},
                                         {0x3021, 0x3029},
                                         {0x3041, 0x30FA},
                                         {0x30FC, 0x30FF},
                                         {0x31F0, 0x31FF},
                                         {0x3400, 0x9FFF},
                                         {0xF900, 0xFAFF},
                                         {0x20000, 0x3FFFF}}};

enum class Kind { space, sign, letter, word };

Kind kindOf(char32_t character) {
    if (isIn(spaces, character)) return Kind::space;
    if (isIn(unspaced, character)) return Kind::word;
    return isIn(signs, character) ? Kind::sign : Kind::letter;
}

}  // namespace

std::size_t countOfWords(std::string_view text) {
    std::size_t count = 0;
    bool isInWord = false;
    while (!text.empty()) {
        const auto character = takeCharacter(text);
        const Kind kind = character ? kindOf(*character) : Kind::sign;
        if (kind == Kind::word || (kind == Kind::letter && !isInWord)) ++count;
        // A sign neither begins nor ends a word: "don't" and "4.2.1" are one word each.
        if (kind != Kind::sign) isInWord = kind == Kind::letter;
    }
    return count;
}

}  // namespace vantle
