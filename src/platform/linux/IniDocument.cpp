#include "platform/linux/IniDocument.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "platform/PreferenceConversion.h"

namespace vantle {
namespace {

constexpr std::string_view generalGroup = "General";
constexpr std::string_view beforeTheFirstGroup;

std::string_view trimmed(std::string_view text) {
    const auto isBlank = [](char character) { return character == ' ' || character == '\t'; };
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
    return text;
}

bool isControl(char character) {
    const auto byte = static_cast<unsigned char>(character);
    return byte < 0x20 || byte == 0x7f;
}

bool isQuoted(std::string_view text) {
    return text.size() >= 2 && text.front() == '"' && text.back() == '"';
}

std::string unquoted(std::string_view text) {
    std::string value;
    text = text.substr(1, text.size() - 2);
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\' || i + 1 == text.size()) {
            value += text[i];
            continue;
        }
        const char escape = text[++i];
        int code = 0;
        if (escape == 'x' && i + 2 < text.size() &&
            std::from_chars(text.data() + i + 1, text.data() + i + 3, code, 16).ptr ==
                text.data() + i + 3) {
            value += static_cast<char>(code);
            i += 2;
        } else {
            value += escape == 'n' ? '\n' : escape == 'r' ? '\r' : escape == 't' ? '\t' : escape;
        }
    }
    return value;
}

std::string quoted(std::string_view text) {
    static constexpr char digits[] = "0123456789abcdef";
    std::string written = "\"";
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if (character == '"' || character == '\\') {
            written += {'\\', character};
        } else if (isControl(character)) {
            written += {'\\', 'x', digits[byte >> 4], digits[byte & 0x0f]};
        } else {
            written += character;
        }
    }
    return written + '"';
}

PreferenceValue parsed(std::string_view text) {
    if (text == "true") return true;
    if (text == "false") return false;
    if (const auto value = numberFromText(text)) return *value;
    if (isQuoted(text)) return unquoted(text);
    return std::string(text);
}

std::string written(bool value) {
    return value ? "true" : "false";
}

std::string written(double value) {
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
    return {buffer.data(), end};
}

std::string written(const std::string& value) {
    const bool readsBack = std::ranges::none_of(value, isControl) && trimmed(value) == value &&
                           parsed(value) == PreferenceValue(value) && !value.empty();
    return readsBack ? value : quoted(value);
}

}  // namespace

IniDocument IniDocument::parse(std::string_view text) {
    IniDocument document;
    std::string meaningful;
    while (!text.empty()) {
        const auto line = text.substr(0, std::min(text.find('\n'), text.size() - 1) + 1);
        if (KeyFile::isText(line) && KeyFile(line).isWellFormed())
            meaningful += line;
        else
            document.isIntact_ = false;
        text.remove_prefix(line.size());
    }
    document.file_ = KeyFile(meaningful);
    return document;
}

std::optional<PreferenceValue> IniDocument::value(std::string_view key) const {
    for (const auto group : {generalGroup, beforeTheFirstGroup})
        if (const auto written = file_.value(group, key)) return parsed(*written);
    return std::nullopt;
}

void IniDocument::set(std::string_view key, const PreferenceValue& value) {
    const bool standsBefore =
        !file_.value(generalGroup, key) && file_.value(beforeTheFirstGroup, key);
    file_.set(standsBefore ? beforeTheFirstGroup : generalGroup, key,
              std::visit([](const auto& typed) { return written(typed); }, value));
}

std::string IniDocument::text() const {
    return file_.text();
}

}  // namespace vantle
