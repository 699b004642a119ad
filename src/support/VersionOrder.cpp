#include "support/VersionOrder.h"

#include <algorithm>

namespace vantle {
namespace {

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

bool isLetter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

/// Removes the next part from `rest` and returns it; empty at the end.
std::string_view takePart(std::string_view& rest) {
    const auto start =
        std::ranges::find_if(rest, [](char each) { return isDigit(each) || isLetter(each); });
    const auto isSame = start != rest.end() && isDigit(*start) ? isDigit : isLetter;
    const auto end = std::find_if_not(start, rest.end(), isSame);
    const std::string_view part(start, end);
    rest = {end, rest.end()};
    return part;
}

/// An empty part counts as 0.
std::weak_ordering compareNumbers(std::string_view left, std::string_view right) {
    const auto withoutZeros = [](std::string_view digits) {
        digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
        return digits;
    };
    left = withoutZeros(left);
    right = withoutZeros(right);
    if (left.size() != right.size()) return left.size() <=> right.size();
    return left <=> right;
}

std::weak_ordering compareParts(std::string_view left, std::string_view right) {
    const bool isText = !left.empty() && isLetter(left.front());
    const bool isOtherText = !right.empty() && isLetter(right.front());
    if (isText && isOtherText) return left <=> right;
    if (isText) return std::weak_ordering::less;
    if (isOtherText) return std::weak_ordering::greater;
    return compareNumbers(left, right);
}

}  // namespace

std::weak_ordering compareVersions(std::string_view left, std::string_view right) {
    while (!left.empty() || !right.empty()) {
        const auto order = compareParts(takePart(left), takePart(right));
        if (order != 0) return order;
    }
    return std::weak_ordering::equivalent;
}

}  // namespace vantle
