#include "support/NumberFromText.h"

#include <algorithm>
#include <cmath>
#include <locale>
#include <sstream>
#include <string>

namespace vantle {
namespace {

/// Removes the digits at the beginning and returns how many there were.
std::size_t takeDigits(std::string_view& text) {
    const auto count = std::min(text.find_first_not_of("0123456789"), text.size());
    text.remove_prefix(count);
    return count;
}

bool takeOneOf(std::string_view signs, std::string_view& text) {
    if (text.empty() || signs.find(text.front()) == std::string_view::npos) return false;
    text.remove_prefix(1);
    return true;
}

/// Returns true for "-1", "1.5", ".5", "1.5e-3" and the like. Streams accept more, and not all of
/// them accept the same.
bool isDecimal(std::string_view text) {
    takeOneOf("-", text);
    std::size_t digits = takeDigits(text);
    if (takeOneOf(".", text)) digits += takeDigits(text);
    if (digits == 0 || text.empty()) return digits > 0;
    if (!takeOneOf("eE", text)) return false;
    takeOneOf("+-", text);
    return takeDigits(text) > 0 && text.empty();
}

}  // namespace

std::optional<double> numberFromText(std::string_view text) {
    if (!isDecimal(text)) return std::nullopt;
    // Not every C++ standard library has from_chars() for these numbers.
    std::istringstream stream{std::string(text)};
    stream.imbue(std::locale::classic());
    double value = 0;
    stream >> value;
    // Some libraries report that a number too small to be held exactly is out of range.
    const bool isTooLarge = !stream && std::abs(value) >= 1;
    return isTooLarge ? std::nullopt : std::optional(value);
}

}  // namespace vantle
