#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantle {

/// The text of a settings file like INI: "key=value" lines in [groups]. Accepts any text and leaves
/// everything that is not changed as it is, byte for byte.
///
/// The group "" holds the keys before the first [group]. A key's flags ("key[$e]=value", as KDE
/// writes them) are not part of its name.
class KeyFile {
public:
    /// Returns true if the text has no control characters other than tabs and line breaks. A file
    /// that has some is not a settings file.
    static bool isText(std::string_view text);

    KeyFile() = default;
    explicit KeyFile(std::string_view text);

    /// Returns the value as written, without surrounding blanks, or nothing if the key is missing.
    /// If the key occurs more than once, the last one counts.
    std::optional<std::string> value(std::string_view group, std::string_view key) const;

    /// Writes `value` as it is; it must not contain a line break. An existing key keeps its place
    /// and its flags; a new one is added at the end of its group.
    void set(std::string_view group, std::string_view key, std::string_view value);

    /// Removes every occurrence of the key from the group.
    void remove(std::string_view group, std::string_view key);

    bool hasGroup(std::string_view group) const;

    /// Returns true if any group has a key.
    bool hasEntries() const;

    /// Returns true if each line is empty, a comment (# or ;), a [group] or a key with its value.
    bool isWellFormed() const;

    std::string text() const;

private:
    enum class Kind { blank, comment, group, entry, other };

    // Kept small, because a hostile file can consist of nothing but line breaks.
    struct Line {
        std::string raw;  ///< The text with its line break.
        Kind kind = Kind::other;
        std::size_t group = 0;  ///< Index in groups_ of the group that it belongs to or begins.
    };

    void append(std::string_view raw);
    bool isEntry(const Line& line, std::string_view group, std::string_view key) const;
    std::vector<Line>::iterator endOfGroup(std::string_view group);
    std::string lineBreak() const;

    std::vector<std::string> groups_{""};  ///< One entry for each [group] line, after "".
    std::string byteOrderMark_;
    std::vector<Line> lines_;
};

}  // namespace vantle
