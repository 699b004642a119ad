#pragma once

#include <string>

#include "platform/LoginItem.h"
#include "support/Url.h"

namespace vantle {

/// A desktop entry in the user's autostart folder. Registered means that it is there, and neither
/// hidden nor disabled by the desktop's own settings.
class AutostartLoginItem final : public LoginItem {
public:
    /// `identifier` names the entry; `executable` is the absolute path of the program to start.
    AutostartLoginItem(const Url& folder, const std::string& identifier, std::string executable)
        : entry_(folder.appending(identifier + ".desktop")), executable_(std::move(executable)) {}

    Status status() const override;
    Outcome registerItem() override;
    Outcome unregisterItem() override;

private:
    Url entry_;
    std::string executable_;
};

}  // namespace vantle
