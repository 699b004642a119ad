#pragma once

#include <algorithm>
#include <cctype>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "platform/PreferenceValue.h"
#include "support/NumberFromText.h"

namespace vantle {

/// Returns a stored value as a number: true is 1, and text is converted if it is a number. Absent
/// if the value does not stand for a number.
inline std::optional<double> asNumber(const PreferenceValue& value) {
    if (const auto* boolean = std::get_if<bool>(&value)) return *boolean ? 1 : 0;
    if (const auto* number = std::get_if<double>(&value)) return *number;
    return numberFromText(std::get<std::string>(value));
}

/// Returns a stored value as a Boolean: a number other than 0 is true, and so are the words true,
/// yes and on; false, no and off are false; the case of letters does not matter. Absent if the
/// value stands for neither.
inline std::optional<bool> asBoolean(const PreferenceValue& value) {
    if (const auto* text = std::get_if<std::string>(&value)) {
        const auto isOneOf = [&](std::initializer_list<std::string_view> words) {
            const auto isEqual = [](char a, char b) {
                return std::tolower(static_cast<unsigned char>(a)) == b;
            };
            return std::ranges::any_of(
                words, [&](auto word) { return std::ranges::equal(*text, word, isEqual); });
        };
        if (isOneOf({"true", "yes", "on"})) return true;
        if (isOneOf({"false", "no", "off"})) return false;
    }
    const auto number = asNumber(value);
    return number ? std::optional(*number != 0) : std::nullopt;
}

/// Returns a stored value if it is text, otherwise nothing.
inline std::optional<std::string> asText(const PreferenceValue& value) {
    const auto* text = std::get_if<std::string>(&value);
    return text ? std::optional(*text) : std::nullopt;
}

}  // namespace vantle
