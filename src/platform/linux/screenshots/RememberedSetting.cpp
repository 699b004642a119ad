#include "platform/linux/screenshots/RememberedSetting.h"

#include "platform/PreferenceConversion.h"

namespace vantle {
namespace {

constexpr auto beforeKey = ".before";
constexpr auto writtenKey = ".written";

// A Boolean, because any text could be a value of the setting.
const PreferenceValue wasNotSet = false;

}  // namespace

std::optional<std::string> RememberedSetting::text() const {
    const auto text = setting_->read();
    return text ? text.value() : std::nullopt;
}

Outcome RememberedSetting::change(const std::string& text) {
    const auto current = setting_->read();
    if (!current) return current.failure();
    const auto earlier = before();
    if (auto failure = remember(earlier ? earlier->text : current.value(), text)) return failure;
    return setting_->write(text);
}

std::optional<RememberedSetting::Before> RememberedSetting::before() const {
    const auto current = setting_->read();
    const auto memory = memory_.load();
    const auto before = memory.value(name_ + beforeKey);
    const auto written = memory.value(name_ + writtenKey);
    if (!current || !before || !written || !isSame(current.value(), asText(*written)))
        return std::nullopt;
    return Before{asText(*before)};
}

Outcome RememberedSetting::restore() {
    const auto earlier = before();
    return earlier ? setting_->write(earlier->text) : Outcome();
}

bool RememberedSetting::isSame(const std::optional<std::string>& one,
                               const std::optional<std::string>& other) const {
    if (!one || !other) return one == other;
    return meaning_(*one) == meaning_(*other);
}

Outcome RememberedSetting::remember(const std::optional<std::string>& before,
                                    const std::string& written) {
    return memory_.store({{name_ + beforeKey, before ? PreferenceValue(*before) : wasNotSet},
                          {name_ + writtenKey, written}});
}

}  // namespace vantle
