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

/// What a stored value means as a number: true is 1, and text counts when it is one. Absent when
/// it means nothing.
inline std::optional<double> asNumber(const PreferenceValue& value) {
    if (const auto* boolean = std::get_if<bool>(&value)) return *boolean ? 1 : 0;
    if (const auto* number = std::get_if<double>(&value)) return *number;
    return numberFromText(std::get<std::string>(value));
}

/// What a stored value means as a choice: a number other than 0 is yes, and so is what a person
/// writes for it (true, yes, on; false, no, off; in any case). Absent when it means nothing.
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

/// Only text means text.
inline std::optional<std::string> asText(const PreferenceValue& value) {
    const auto* text = std::get_if<std::string>(&value);
    return text ? std::optional(*text) : std::nullopt;
}

}  // namespace vantle
