#pragma once

#include <optional>
#include <string>

#include "support/Result.h"

namespace vantle {

/// One setting of another program: text in that program's own notation. Main thread only.
class TextSetting {
public:
    virtual ~TextSetting() = default;

    /// Absent when it is not set, so that the program uses its default. Reads anew at each call.
    /// Fails when the settings cannot be read or are damaged; that is logged once.
    virtual Result<std::optional<std::string>> read() const = 0;

    /// Sets it, or takes it away when `text` is absent; everything else that the program has set
    /// stays as it is. A failure is logged once.
    virtual Outcome write(const std::optional<std::string>& text) = 0;

    /// Why it cannot be changed, as a sentence for a person; empty when it can.
    virtual std::string obstacle() const = 0;
};

}  // namespace vantle
