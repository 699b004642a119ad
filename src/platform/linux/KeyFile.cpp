#include "platform/linux/KeyFile.h"

#include <algorithm>
#include <utility>

namespace vantle {
namespace {

constexpr std::string_view byteOrderMark = "\xef\xbb\xbf";

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// Returns the trimmed text before and after the first "=" of a line.
std::pair<std::string_view, std::string_view> entry(std::string_view raw) {
    const auto equals = std::min(raw.find('='), raw.size());
    return {trimmed(raw.substr(0, equals)), trimmed(raw.substr(std::min(equals + 1, raw.size())))};
}

/// Returns the key without flags such as "[$e]".
std::string_view withoutFlags(std::string_view name) {
    return name.substr(0, name.find("[$"));
}

}  // namespace

bool KeyFile::isText(std::string_view text) {
    return std::ranges::none_of(text, [](char one) {
        const auto byte = static_cast<unsigned char>(one);
        return (byte < 0x20 || byte == 0x7f) && one != '\n' && one != '\r' && one != '\t';
    });
}

KeyFile::KeyFile(std::string_view text) {
    if (text.starts_with(byteOrderMark)) {
        byteOrderMark_ = byteOrderMark;
        text.remove_prefix(byteOrderMark.size());
    }
    while (!text.empty()) {
        const auto length = std::min(text.find('\n'), text.size() - 1) + 1;
        append(text.substr(0, length));
        text.remove_prefix(length);
    }
}

void KeyFile::append(std::string_view raw) {
    Line line{.raw = std::string(raw), .group = lines_.empty() ? 0 : lines_.back().group};
    const auto content = trimmed(raw);
    if (content.empty()) {
        line.kind = Kind::blank;
    } else if (content.front() == '#' || content.front() == ';') {
        line.kind = Kind::comment;
    } else if (content.front() == '[' && content.back() == ']') {
        line.kind = Kind::group;
        line.group = groups_.size();
        groups_.emplace_back(content.substr(1, content.size() - 2));
    } else if (!entry(content).first.empty() && content.front() != '[' &&
               content.find('=') != std::string_view::npos) {
        line.kind = Kind::entry;
    }
    lines_.push_back(std::move(line));
}

bool KeyFile::isEntry(const Line& line, std::string_view group, std::string_view key) const {
    return line.kind == Kind::entry && groups_[line.group] == group &&
           withoutFlags(entry(line.raw).first) == key;
}

std::optional<std::string> KeyFile::value(std::string_view group, std::string_view key) const {
    for (auto line = lines_.rbegin(); line != lines_.rend(); ++line)
        if (isEntry(*line, group, key)) return std::string(entry(line->raw).second);
    return std::nullopt;
}

void KeyFile::set(std::string_view group, std::string_view key, std::string_view value) {
    const auto written = [&](std::string_view name) {
        return std::string(name) + "=" + std::string(value) + lineBreak();
    };
    const auto there = std::find_if(lines_.rbegin(), lines_.rend(),
                                    [&](const Line& line) { return isEntry(line, group, key); });
    if (there != lines_.rend()) {
        there->raw = written(entry(there->raw).first);
        return;
    }
    const auto place = endOfGroup(group);
    Line line{.raw = written(key), .kind = Kind::entry};
    if (place != lines_.begin()) {
        Line& before = *std::prev(place);
        line.group = before.group;
        // The last line of a file may have no line break.
        if (!before.raw.ends_with('\n')) before.raw += lineBreak();
    }
    lines_.insert(place, std::move(line));
}

std::vector<KeyFile::Line>::iterator KeyFile::endOfGroup(std::string_view group) {
    if (!group.empty() && !hasGroup(group)) {
        if (!lines_.empty()) {
            if (!lines_.back().raw.ends_with('\n')) lines_.back().raw += lineBreak();
            append(lineBreak());
        }
        append("[" + std::string(group) + "]" + lineBreak());
        return lines_.end();
    }
    const auto isInside = [&](const Line& line) {
        return groups_[line.group] == group && line.kind != Kind::blank;
    };
    return std::find_if(lines_.rbegin(), lines_.rend(), isInside).base();
}

void KeyFile::remove(std::string_view group, std::string_view key) {
    std::erase_if(lines_, [&](const Line& line) { return isEntry(line, group, key); });
}

bool KeyFile::hasGroup(std::string_view group) const {
    return std::ranges::any_of(lines_, [&](const Line& line) {
        return line.kind == Kind::group && groups_[line.group] == group;
    });
}

bool KeyFile::hasEntries() const {
    return std::ranges::any_of(lines_, [](const Line& line) { return line.kind == Kind::entry; });
}

bool KeyFile::isWellFormed() const {
    return std::ranges::none_of(lines_, [](const Line& line) { return line.kind == Kind::other; });
}

std::string KeyFile::lineBreak() const {
    return !lines_.empty() && lines_.front().raw.ends_with("\r\n") ? "\r\n" : "\n";
}

std::string KeyFile::text() const {
    std::string text = byteOrderMark_;
    for (const Line& line : lines_) text += line.raw;
    return text;
}

}  // namespace vantle
