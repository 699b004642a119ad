#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/linux/KeyFile.h"
#include "support/Result.h"
#include "support/Url.h"

namespace vantle {

/// The settings files of a program: the user's own comes before those of the system. Only the
/// user's file is written, in one step and with its mode kept, and never if it is damaged, larger
/// than 256 KiB, unreadable or read-only. The first failure is logged.
class SettingsFiles {
public:
    /// `files` begins with the user's own and is never empty.
    explicit SettingsFiles(std::vector<Url> files) : files_(std::move(files)) {}

    /// Returns nothing if no file has the key. The group "" holds the keys before the first group.
    Result<std::optional<std::string>> value(std::string_view group, std::string_view key) const;

    /// Sets the key, or removes it if `text` is absent.
    Outcome change(std::string_view group, std::string_view key,
                   const std::optional<std::string>& text);

    /// Returns why nothing can be changed, as a sentence for the user; an empty string if it can.
    std::string obstacle() const;

private:
    const Url& ownFile() const { return files_.front(); }
    Result<KeyFile> load(const Url& file) const;
    Failure logOnce(const Failure& failure) const;

    std::vector<Url> files_;
    mutable bool hasLogged_ = false;
};

}  // namespace vantle
