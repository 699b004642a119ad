#include "platform/linux/screenshots/GSettingsSetting.h"

#include <cerrno>
#include <utility>

#include "support/Localization.h"
#include "support/SystemLog.h"

namespace vantle {

Result<std::optional<std::string>> GSettingsSetting::read() const {
    auto text = settings_->text(schema_, key_);
    if (!text) return logOnce(text.failure());
    if (text.value().empty()) return std::optional<std::string>();
    return std::optional(std::move(text.value()));
}

Outcome GSettingsSetting::write(const std::optional<std::string>& text) {
    const auto failure =
        text ? settings_->setText(schema_, key_, *text) : settings_->reset(schema_, key_);
    if (failure) return logOnce(*failure);
    return {};
}

std::string GSettingsSetting::obstacle() const {
    if (settings_->isWritable(schema_, key_)) return {};
    return filled(
        localized("ScreenshotTool", "The desktop does not allow its setting \"%1\" to be changed."),
        {key_});
}

Failure GSettingsSetting::logOnce(const Failure& failure) const {
    if (failure.code != EAGAIN && !std::exchange(hasLogged_, true))
        systemLog("Vantle: cannot read or change the setting " + key_ + " of " + schema_ + ": " +
                  failure.message);
    return failure;
}

}  // namespace vantle
