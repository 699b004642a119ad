#pragma once

#include <string>
#include <vector>

#include "platform/LoginItem.h"
#include "support/Url.h"

namespace vantle {

/// A desktop entry in an autostart folder. If several folders hold an entry of that name, the first
/// one counts: the user's folder comes before those of the system, and a hidden entry in it
/// overrides the system's. The login item is enabled if the entry that counts is neither hidden nor
/// disabled, is meant for the running desktop, and starts an existing program.
class AutostartLoginItem final : public LoginItem {
public:
    /// `folders` are the autostart folders, the user's own first; only that one is written to.
    /// `identifier` names the entry; `executable` is the absolute path of the program to start.
    /// `desktop` is the value of $XDG_CURRENT_DESKTOP, names separated by colons.
    AutostartLoginItem(const std::vector<Url>& folders, const std::string& identifier,
                       std::string executable, std::string desktop = {});

    Status status() const override;
    Outcome registerItem() override;
    Outcome unregisterItem() override;

private:
    std::vector<Url> entries_;  ///< The possible places of the entry; never empty.
    std::string executable_;
    std::string desktop_;
};

}  // namespace vantle
