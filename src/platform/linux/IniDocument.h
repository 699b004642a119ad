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

    /// Absent when the text is no INI file: it holds a control character, or a line that is neither
    /// empty, a comment (# or ;), a [group], nor key=value. Windows line ends and a byte order mark
    /// are fine.
    static std::optional<IniDocument> parse(std::string_view text);

    std::optional<PreferenceValue> value(std::string_view key) const;
    void set(std::string_view key, const PreferenceValue& value);

    std::string text() const;

private:
    KeyFile file_;
};

}  // namespace vantle
