#pragma once

#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "support/Environment.h"
#include "support/Url.h"

namespace vantle {

/// The user's folders as the desktop's settings name them (XDG base directories and
/// user-dirs.dirs). Reads the file anew at each call. Any thread.
class UserDirectories {
public:
    explicit UserDirectories(Environment environment) : environment_(std::move(environment)) {}

    /// $HOME, else the account's.
    Url home() const;

    /// $XDG_CONFIG_HOME, else ~/.config.
    Url configuration() const;

    /// $XDG_CONFIG_DIRS, else /etc/xdg: those of the system, the most important one first.
    std::vector<Url> systemConfiguration() const;

    /// $XDG_DATA_HOME, else ~/.local/share.
    Url data() const;

    /// $XDG_DATA_DIRS, else those of the standard: those of the system, the most important one
    /// first.
    std::vector<Url> systemData() const;

    /// $XDG_CACHE_HOME, else ~/.cache.
    Url cache() const;

    /// The Desktop folder; ~/Desktop when the settings do not name one.
    Url desktop() const;

    /// The folder for pictures; absent when the settings do not name one.
    std::optional<Url> pictures() const;

    /// The folder for videos; absent when the settings do not name one.
    std::optional<Url> videos() const;

    /// The folder that the text of a user-dirs.dirs file gives for a key such as
    /// "XDG_DESKTOP_DIR": the last line that names an absolute path or one below $HOME counts.
    static std::optional<Url> parse(std::string_view text, std::string_view key, const Url& home);

private:
    std::optional<Url> named(std::string_view key) const;
    Url baseDirectory(const std::string& variable, std::string_view inHome) const;
    std::vector<Url> listed(const std::string& variable, std::string_view byDefault) const;

    Environment environment_;
};

}  // namespace vantle
