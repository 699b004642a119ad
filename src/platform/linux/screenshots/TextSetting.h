#pragma once

#include <optional>
#include <string>

#include "support/Result.h"

namespace vantle {

/// A setting of another program: text in that program's own notation. Main thread only.
class TextSetting {
public:
    virtual ~TextSetting() = default;

    /// Reads the setting at each call. Returns nothing if it is not set and the program uses its
    /// default. Fails if the settings cannot be read or are damaged; that is logged once.
    virtual Result<std::optional<std::string>> read() const = 0;

    /// Sets the text, or removes the setting if `text` is absent. Leaves the program's other
    /// settings as they are. A failure is logged once.
    virtual Outcome write(const std::optional<std::string>& text) = 0;

    /// Returns why the setting cannot be changed, as a sentence for the user; an empty string if it
    /// can.
    virtual std::string obstacle() const = 0;
};

}  // namespace vantle
