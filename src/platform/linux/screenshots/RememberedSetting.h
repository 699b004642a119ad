#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "platform/linux/IniFile.h"
#include "platform/linux/screenshots/TextSetting.h"

namespace vantle {

/// A setting of another program, and what stood there before it was changed here. That is
/// remembered in a file of our own, across restarts, before the change is made; where it cannot be
/// remembered nothing is changed.
class RememberedSetting {
public:
    using Meaning = std::function<std::string(const std::string& text)>;

    /// `name` is that of the setting in the file `memory`. Two texts of the same `meaning` are the
    /// same setting: a program may write in another way what it has read.
    RememberedSetting(std::unique_ptr<TextSetting> setting, const Url& memory, std::string name,
                      Meaning meaning)
        : setting_(std::move(setting)),
          memory_(memory),
          name_(std::move(name)),
          meaning_(std::move(meaning)) {}

    /// Absent when it is not set, or cannot be read.
    std::optional<std::string> text() const;

    Outcome change(const std::string& text);

    struct Before {
        std::optional<std::string> text;  ///< Absent: it was not set.
    };

    /// Absent when it was not changed here, or was changed by others since.
    std::optional<Before> before() const;

    Outcome restore();

    std::string obstacle() const { return setting_->obstacle(); }

private:
    bool isSame(const std::optional<std::string>& one,
                const std::optional<std::string>& other) const;
    Outcome remember(const std::optional<std::string>& before, const std::string& written);

    std::unique_ptr<TextSetting> setting_;
    IniFile memory_;
    std::string name_;
    Meaning meaning_;
};

}  // namespace vantle
