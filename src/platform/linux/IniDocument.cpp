#include "platform/linux/IniDocument.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "platform/PreferenceConversion.h"

namespace vantle {
namespace {

constexpr std::string_view generalGroup = "General";
constexpr std::string_view byteOrderMark = "\xef\xbb\xbf";

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

std::optional<IniDocument> IniDocument::parse(std::string_view text) {
    if (std::ranges::any_of(text, [](char one) {
            return isControl(one) && one != '\n' && one != '\r' && one != '\t';
        }))
        return std::nullopt;
    if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
    IniDocument document;
    std::string group(generalGroup);
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size());
        auto raw = text.substr(0, end);
        if (raw.ends_with('\r')) raw.remove_suffix(1);
        auto line = parseLine(raw, group);
        if (!line) return std::nullopt;
        document.lines_.push_back(std::move(*line));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return document;
}

std::optional<IniDocument::Line> IniDocument::parseLine(std::string_view raw, std::string& group) {
    Line line{.raw = std::string(raw)};
    const auto content = trimmed(raw);
    if (content.empty() || content.front() == '#' || content.front() == ';') return line;
    if (content.front() == '[') {
        if (content.back() != ']') return std::nullopt;
        group = content.substr(1, content.size() - 2);
        return line;
    }
    const auto equals = content.find('=');
    if (equals == std::string_view::npos || equals == 0) return std::nullopt;
    if (group == generalGroup) {
        line.key = trimmed(content.substr(0, equals));
        line.value = trimmed(content.substr(equals + 1));
    }
    return line;
}

std::optional<PreferenceValue> IniDocument::value(std::string_view key) const {
    // Of a key that stands twice the last one counts.
    for (auto line = lines_.rbegin(); line != lines_.rend(); ++line)
        if (line->key == key) return parsed(line->value);
    return std::nullopt;
}

void IniDocument::set(std::string_view key, const PreferenceValue& value) {
    Line line{.key = std::string(key)};
    line.value = std::visit([](const auto& typed) { return written(typed); }, value);
    line.raw = line.key + "=" + line.value;

    const auto same = std::ranges::find(lines_.rbegin(), lines_.rend(), key, &Line::key);
    if (same != lines_.rend()) {
        *same = std::move(line);
        return;
    }
    const auto isGeneral = [](const Line& one) { return trimmed(one.raw) == "[General]"; };
    auto header = std::ranges::find_if(lines_, isGeneral);
    if (header == lines_.end()) header = lines_.insert(lines_.begin(), Line{.raw = "[General]"});
    lines_.insert(std::find_if(header + 1, lines_.end(), isGroup), std::move(line));
}

bool IniDocument::isGroup(const Line& line) {
    return trimmed(line.raw).starts_with('[');
}

std::string IniDocument::text() const {
    std::string text;
    for (const Line& line : lines_) text += line.raw + "\n";
    return text;
}

}  // namespace vantle
