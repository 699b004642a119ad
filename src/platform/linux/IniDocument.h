#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/PreferenceValue.h"
#include "platform/linux/KeyFile.h"

namespace vantle {

/// The text of an INI file, whose keys stand in the group [General] or before the first group.
/// Everything that is not asked for stays as it is written: other groups and keys, comments, order.
///
/// A value is true or false, a finite number, or else text as it stands up to the end of the line.
/// Text in double quotes is text whatever it looks like; in it \" \\ \n \r \t and \xHH are escapes.
class IniDocument {
public:
    IniDocument() = default;

    /// Leaves out each line that is neither empty, a comment (# or ;), a [group], nor key=value, or
    /// that holds a control character. Windows line ends and a byte order mark are fine.
    static IniDocument parse(std::string_view text);

    /// Whether no line was left out.
    bool isWhole() const { return isWhole_; }
    /// Whether it has no key at all.
    bool isEmpty() const { return !file_.hasEntries(); }

    std::optional<PreferenceValue> value(std::string_view key) const;
    void set(std::string_view key, const PreferenceValue& value);

    std::string text() const;

private:
    KeyFile file_;
    bool isWhole_ = true;
};

}  // namespace vantle
