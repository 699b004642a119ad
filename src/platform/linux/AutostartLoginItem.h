#pragma once

#include <string>
#include <vector>

#include "platform/LoginItem.h"
#include "support/Url.h"

namespace vantle {

/// A desktop entry in an autostart folder. The first entry of its name counts, the user's own
/// folder coming before those of the system; an entry there that only hides shadows the one behind
/// it. Registered means that the entry that counts is neither hidden nor disabled, meant for the
/// desktop that runs, and starts a program that is there.
class AutostartLoginItem final : public LoginItem {
public:
    /// `folders` are the autostart folders, first the user's own, the only one that is written to.
    /// `identifier` names the entry; `executable` is the absolute path of the program to start.
    /// `desktop` is what $XDG_CURRENT_DESKTOP names, parted by colons.
    AutostartLoginItem(const std::vector<Url>& folders, const std::string& identifier,
                       std::string executable, std::string desktop = {});

    Status status() const override;
    Outcome registerItem() override;
    Outcome unregisterItem() override;

private:
    std::vector<Url> entries_;  ///< Where an entry can stand; never empty.
    std::string executable_;
    std::string desktop_;
};

}  // namespace vantle
