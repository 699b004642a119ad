#pragma once

#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "support/Environment.h"
#include "support/Url.h"

namespace vantle {

/// The user's folders according to the desktop's settings (XDG base directories and
/// user-dirs.dirs). Reads that file at each call. Any thread.
class UserDirectories {
public:
    explicit UserDirectories(Environment environment) : environment_(std::move(environment)) {}

    /// $HOME, otherwise the home folder of the account.
    Url home() const;

    /// $XDG_CONFIG_HOME, otherwise ~/.config.
    Url configuration() const;

    /// The system's folders: $XDG_CONFIG_DIRS, otherwise /etc/xdg; the most important one first.
    std::vector<Url> systemConfiguration() const;

    /// $XDG_DATA_HOME, otherwise ~/.local/share.
    Url data() const;

    /// The system's folders: $XDG_DATA_DIRS, otherwise /usr/local/share and /usr/share; the most
    /// important one first.
    std::vector<Url> systemData() const;

    /// $XDG_CACHE_HOME, otherwise ~/.cache.
    Url cache() const;

    /// The Desktop folder; ~/Desktop if the settings do not name one.
    Url desktop() const;

    /// The folder for pictures; absent if the settings do not name one.
    std::optional<Url> pictures() const;

    /// The folder for videos; absent if the settings do not name one.
    std::optional<Url> videos() const;

    /// Returns the folder that the text of a user-dirs.dirs file names for a key such as
    /// "XDG_DESKTOP_DIR". The last line with an absolute path or one below $HOME counts.
    static std::optional<Url> parse(std::string_view text, std::string_view key, const Url& home);

private:
    std::optional<Url> named(std::string_view key) const;
    Url baseDirectory(const std::string& variable, std::string_view inHome) const;
    std::vector<Url> listed(const std::string& variable, std::string_view byDefault) const;

    Environment environment_;
};

}  // namespace vantle
