#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantle {

/// The text of a settings file in the manner of INI: "key=value" lines in [groups]. Any text is
/// taken; whatever is not asked for stays as it is written, byte for byte.
///
/// The group "" is what stands before the first [group]. A key's flags ("key[$e]=value", as KDE
/// writes them) are no part of its name.
class KeyFile {
public:
    /// Whether it holds no control characters but tabs and line breaks; anything else is no
    /// settings file.
    static bool isText(std::string_view text);

    KeyFile() = default;
    explicit KeyFile(std::string_view text);

    /// As written, without the blanks around it. Of a key that stands twice the last one counts.
    std::optional<std::string> value(std::string_view group, std::string_view key) const;

    /// `value` is written as it stands and must not hold a line break. A key that is there keeps
    /// its place and its flags; a new one comes at the end of its group.
    void set(std::string_view group, std::string_view key, std::string_view value);

    /// Takes the key away, wherever it stands in that group.
    void remove(std::string_view group, std::string_view key);

    bool hasGroup(std::string_view group) const;

    /// Whether it has a key, in any group.
    bool hasEntries() const;

    /// Whether each line is empty, a comment (# or ;), a [group] or a key with its value.
    bool isWellFormed() const;

    std::string text() const;

private:
    enum class Kind { blank, comment, group, entry, other };

    // Small: a hostile file can be nothing but lines.
    struct Line {
        std::string raw;  ///< With its line break.
        Kind kind = Kind::other;
        std::size_t group = 0;  ///< That it stands in, or begins.
    };

    void append(std::string_view raw);
    bool isEntry(const Line& line, std::string_view group, std::string_view key) const;
    std::vector<Line>::iterator endOfGroup(std::string_view group);
    std::string lineBreak() const;

    std::vector<std::string> groups_{""};  ///< One for each time that one begins.
    std::string byteOrderMark_;
    std::vector<Line> lines_;
};

}  // namespace vantle
