#include "platform/linux/screenshots/Escapes.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

namespace vantle {
namespace {

bool isHex(char16_t unit) {
    return (unit >= '0' && unit <= '9') || (unit >= 'a' && unit <= 'f') ||
           (unit >= 'A' && unit <= 'F');
}

bool isInName(char letter) {
    return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') ||
           (letter >= '0' && letter <= '9') || letter == '_';
}

bool isOneOf(char letter, std::string_view letters) {
    return letters.find(letter) != std::string_view::npos;
}

char takeFirst(std::string_view& text) {
    const char first = text.front();
    text.remove_prefix(1);
    return first;
}

/// Removes up to `maximum` hexadecimal digits from the front and returns their value; 0 if there
/// are none.
std::uint16_t takeHex(std::string_view& text, std::size_t maximum) {
    std::uint16_t value = 0;
    const auto* end = text.data() + std::min(maximum, text.size());
    const auto* rest = std::from_chars(text.data(), end, value, 16).ptr;
    text.remove_prefix(static_cast<std::size_t>(rest - text.data()));
    return value;
}

/// Returns nothing if the text is not in the encoding `from`.
std::optional<std::string> converted(const char* from, const char* to, std::string_view text) {
    auto* const conversion = iconv_open(to, from);
    std::string result(text.size() * 2, '\0');
    char* input = const_cast<char*>(text.data());
    char* output = result.data();
    std::size_t inputLeft = text.size();
    std::size_t outputLeft = result.size();
    const bool isWhole = iconv(conversion, &input, &inputLeft, &output, &outputLeft) == 0;
    iconv_close(conversion);
    if (!isWhole) return std::nullopt;
    result.resize(result.size() - outputLeft);
    return result;
}

std::string escapedForQt(char16_t unit) {
    std::array<char, 4> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), unit, 16).ptr;
    return "\\x" + std::string(digits.data(), end);
}

/// Returns the character that a backslash and the letter stand for.
char plainEscape(char letter) {
    constexpr std::string_view letters = "abfnrtv";
    constexpr std::string_view meanings = "\a\b\f\n\r\t\v";
    const auto at = letters.find(letter);
    return at == std::string_view::npos ? letter : meanings[at];
}

}  // namespace

std::string fromBackslashEscapes(std::string_view written) {
    std::string text;
    while (!written.empty()) {
        const char character = takeFirst(written);
        const char letter = written.empty() ? '\0' : written.front();
        if (character != '\\' || !isOneOf(letter, "xstnr\\")) {
            text += character;
            continue;
        }
        written.remove_prefix(1);
        if (letter == 'x') {
            text += static_cast<char>(takeHex(written, 2));
        } else {
            text += letter == 's' ? ' ' : plainEscape(letter);
        }
    }
    return text;
}

std::string fromQtEscapes(std::string_view written) {
    std::string text;
    while (!written.empty()) {
        std::string units;
        while (written.starts_with("\\x")) {
            written.remove_prefix(2);
            const std::uint16_t unit = takeHex(written, 4);
            units += {static_cast<char>(unit & 0xff), static_cast<char>(unit >> 8)};
        }
        if (!units.empty()) text += converted("UTF-16LE", "UTF-8", units).value_or("");
        if (written.empty()) break;
        const char character = takeFirst(written);
        if (character == '\\' && !written.empty()) {
            text += plainEscape(takeFirst(written));
        } else if (character != '"') {
            text += character;
        }
    }
    return text;
}

std::optional<std::string> toQtEscapes(std::string_view text) {
    const auto units = converted("UTF-8", "UTF-16LE", text);
    if (!units) return std::nullopt;
    std::string written;
    bool isAfterEscape = false;
    for (std::size_t i = 0; i + 1 < units->size(); i += 2) {
        const auto byte = [&](std::size_t at) { return static_cast<unsigned char>((*units)[at]); };
        const auto unit = static_cast<char16_t>(byte(i + 1) << 8 | byte(i));
        // Qt reads every digit that follows an escape as a part of it.
        isAfterEscape = unit < 0x20 || unit > 0x7e || (isAfterEscape && isHex(unit));
        if (isAfterEscape) {
            written += escapedForQt(unit);
        } else {
            if (unit == '"' || unit == '\\') written += '\\';
            written += static_cast<char>(unit);
        }
    }
    // Without quotes these would begin a comment, separate a list, or be dropped as blanks.
    const bool needsQuotes = written.find_first_of(";,=\"") != std::string::npos ||
                             written.starts_with(' ') || written.ends_with(' ');
    return needsQuotes ? '"' + written + '"' : written;
}

std::string expandingVariables(std::string_view text, const Environment& environment) {
    std::string expanded;
    while (!text.empty()) {
        const char character = takeFirst(text);
        if (character != '$' || text.empty()) {
            expanded += character;
            continue;
        }
        const bool hasBraces = text.starts_with('{');
        if (hasBraces) text.remove_prefix(1);
        const std::string name(text.begin(), std::ranges::find_if_not(text, isInName));
        text.remove_prefix(name.size());
        if (hasBraces && text.starts_with('}')) text.remove_prefix(1);
        expanded += environment(name).value_or("");
    }
    return expanded;
}

}  // namespace vantle
