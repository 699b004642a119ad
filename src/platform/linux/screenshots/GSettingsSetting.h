#pragma once

#include <memory>
#include <string>
#include <utility>

#include "platform/linux/screenshots/GSettings.h"
#include "platform/linux/screenshots/TextSetting.h"

namespace vantle {

/// A text among the settings of GNOME and related desktops. Empty text counts as not set. Reading a
/// value that is not known yet fails, and that failure is not logged.
class GSettingsSetting final : public TextSetting {
public:
    GSettingsSetting(std::shared_ptr<GSettings> settings, std::string schema, std::string key)
        : settings_(std::move(settings)), schema_(std::move(schema)), key_(std::move(key)) {}

    Result<std::optional<std::string>> read() const override;
    Outcome write(const std::optional<std::string>& text) override;
    std::string obstacle() const override;

private:
    Failure logOnce(const Failure& failure) const;

    std::shared_ptr<GSettings> settings_;
    std::string schema_;
    std::string key_;
    mutable bool hasLogged_ = false;
};

}  // namespace vantle
