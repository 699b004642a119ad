#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/PreferenceValue.h"
#include "platform/linux/KeyFile.h"

namespace vantle {

/// The text of an INI file with its keys in the group [General] or before the first group. Leaves
/// everything else as it is: other groups and keys, comments, order.
///
/// A value is true or false, a finite number, or otherwise the text up to the end of the line. A
/// value in double quotes is always text; in it \" \\ \n \r \t and \xHH are escapes.
class IniDocument {
public:
    IniDocument() = default;

    /// Drops each line that is not empty, a comment (# or ;), a [group] or key=value, and each line
    /// that contains a control character. Accepts tabs, Windows line ends and a byte order mark.
    static IniDocument parse(std::string_view text);

    /// Returns true if parse() dropped no line.
    bool isIntact() const { return isIntact_; }
    /// Returns true if the document has no key in any group.
    bool isEmpty() const { return !file_.hasEntries(); }

    std::optional<PreferenceValue> value(std::string_view key) const;
    void set(std::string_view key, const PreferenceValue& value);

    std::string text() const;

private:
    KeyFile file_;
    bool isIntact_ = true;
};

}  // namespace vantle
