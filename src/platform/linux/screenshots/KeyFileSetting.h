#pragma once

#include <string>
#include <vector>

#include "platform/linux/KeyFile.h"
#include "platform/linux/screenshots/TextSetting.h"
#include "support/Url.h"

namespace vantle {

/// A setting in a settings file. The user's own file comes before those of the system; only it is
/// written to, whole or not at all, keeping its mode, and never when it is damaged, larger than
/// 256 KiB, not to be read, or read-only.
class KeyFileSetting final : public TextSetting {
public:
    struct Place {
        std::vector<Url> files;  ///< The user's first; never empty.
        std::string group;       ///< Empty: before the first group.
        std::string key;
    };

    explicit KeyFileSetting(Place place) : place_(std::move(place)) {}

    Result<std::optional<std::string>> read() const override;
    Outcome write(const std::optional<std::string>& text) override;
    std::string obstacle() const override;

private:
    const Url& ownFile() const { return place_.files.front(); }
    Result<KeyFile> load(const Url& file) const;
    Failure complain(const Failure& failure) const;

    Place place_;
    mutable bool complained_ = false;
};

}  // namespace vantle
