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

/// The settings files of a program: the user's own comes before those of the system; only it is
/// written to, whole or not at all, keeping its mode, and never when it is damaged, larger than
/// 256 KiB, not to be read, or read-only. Whatever goes wrong with them is logged once.
class SettingsFiles {
public:
    /// The user's first; never empty.
    explicit SettingsFiles(std::vector<Url> files) : files_(std::move(files)) {}

    /// Absent when none of them has it. The group "" is what stands before the first group.
    Result<std::optional<std::string>> value(std::string_view group, std::string_view key) const;

    /// Sets the key, or takes it away when `text` is absent.
    Outcome change(std::string_view group, std::string_view key,
                   const std::optional<std::string>& text);

    /// Why nothing can be changed, as a sentence for a person; empty when it can.
    std::string obstacle() const;

private:
    const Url& ownFile() const { return files_.front(); }
    Result<KeyFile> load(const Url& file) const;
    Failure complain(const Failure& failure) const;

    std::vector<Url> files_;
    mutable bool complained_ = false;
};

}  // namespace vantle
