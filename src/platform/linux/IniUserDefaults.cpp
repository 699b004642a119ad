#include "platform/linux/IniUserDefaults.h"

#include "platform/PreferenceConversion.h"

namespace vantle {

void IniUserDefaults::registerDefaults(const std::map<std::string, PreferenceValue>& defaults) {
    for (const auto& [key, value] : defaults) registered_.insert_or_assign(key, value);
}

bool IniUserDefaults::boolean(const std::string& key) const {
    return value(key, asBoolean).value_or(false);
}

double IniUserDefaults::number(const std::string& key) const {
    return value(key, asNumber).value_or(0);
}

std::optional<std::string> IniUserDefaults::text(const std::string& key) const {
    return value(key, asText);
}

void IniUserDefaults::set(const std::string& key, const PreferenceValue& value) {
    stored_.set(key, value);
    unsaved_.insert_or_assign(key, value);
    // A failure is logged by the file; the value holds for this run, and goes with the next write.
    if (!file_.store(unsaved_)) unsaved_.clear();
}

template <typename T>
std::optional<T> IniUserDefaults::value(const std::string& key,
                                        std::optional<T> (*meaning)(const PreferenceValue&)) const {
    if (const auto stored = stored_.value(key))
        if (auto meant = meaning(*stored)) return meant;
    const auto found = registered_.find(key);
    return found == registered_.end() ? std::nullopt : meaning(found->second);
}

}  // namespace vantle
