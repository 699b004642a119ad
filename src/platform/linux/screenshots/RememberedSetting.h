#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "platform/linux/IniFile.h"
#include "platform/linux/screenshots/TextSetting.h"

namespace vantle {

/// A setting of another program, and its value before it was changed here. That value is stored in
/// a file of our own before the change, so that it survives restarts. If it cannot be stored,
/// nothing is changed.
class RememberedSetting {
public:
    using Meaning = std::function<std::string(const std::string& text)>;

    /// `name` is the setting's name in the file `memory`. Texts with the same `meaning` count as
    /// equal, because a program may write a value in another way than it has read it.
    RememberedSetting(std::unique_ptr<TextSetting> setting, const Url& memory, std::string name,
                      Meaning meaning)
        : setting_(std::move(setting)),
          memory_(memory),
          name_(std::move(name)),
          meaning_(std::move(meaning)) {}

    /// Returns the current text, or nothing if it is not set or cannot be read.
    std::optional<std::string> text() const;

    Outcome change(const std::string& text);

    struct Before {
        std::optional<std::string> text;  ///< Absent if the setting was not set.
    };

    /// Returns the value before the change; nothing if the setting was not changed here or has been
    /// changed by others since.
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
