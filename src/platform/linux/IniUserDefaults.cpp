#include "platform/linux/IniUserDefaults.h"

namespace vantle {

void IniUserDefaults::registerDefaults(const std::map<std::string, PreferenceValue>& defaults) {
    for (const auto& [key, value] : defaults) registered_.insert_or_assign(key, value);
}

bool IniUserDefaults::boolean(const std::string& key) const {
    const auto found = value(key);
    if (!found) return false;
    if (const auto* number = std::get_if<double>(&*found)) return *number != 0;
    const auto* boolean = std::get_if<bool>(&*found);
    return boolean && *boolean;
}

double IniUserDefaults::number(const std::string& key) const {
    const auto found = value(key);
    if (!found) return 0;
    if (const auto* boolean = std::get_if<bool>(&*found)) return *boolean ? 1 : 0;
    const auto* number = std::get_if<double>(&*found);
    return number ? *number : 0;
}

std::optional<std::string> IniUserDefaults::text(const std::string& key) const {
    const auto found = value(key);
    if (!found || !std::holds_alternative<std::string>(*found)) return std::nullopt;
    return std::get<std::string>(*found);
}

void IniUserDefaults::set(const std::string& key, const PreferenceValue& value) {
    stored_.set(key, value);
    // A failure is logged by the file; the value holds for this run all the same.
    (void)file_.store(key, value);
}

std::optional<PreferenceValue> IniUserDefaults::value(const std::string& key) const {
    if (auto stored = stored_.value(key)) return stored;
    const auto found = registered_.find(key);
    return found == registered_.end() ? std::nullopt : std::optional(found->second);
}

}  // namespace vantle
