#pragma once

#include <memory>
#include <string>
#include <utility>

#include "platform/linux/screenshots/SettingsFiles.h"
#include "platform/linux/screenshots/TextSetting.h"

namespace vantle {

/// A setting in the settings files of its program; all settings of that program share the files.
class KeyFileSetting final : public TextSetting {
public:
    KeyFileSetting(std::shared_ptr<SettingsFiles> files, std::string group, std::string key)
        : files_(std::move(files)), group_(std::move(group)), key_(std::move(key)) {}

    Result<std::optional<std::string>> read() const override { return files_->value(group_, key_); }
    Outcome write(const std::optional<std::string>& text) override {
        return files_->change(group_, key_, text);
    }
    std::string obstacle() const override { return files_->obstacle(); }

private:
    std::shared_ptr<SettingsFiles> files_;
    std::string group_;
    std::string key_;
};

}  // namespace vantle
