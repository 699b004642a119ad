#pragma once

#include <map>
#include <string>
#include <utility>

#include "platform/PreferencesDomain.h"
#include "platform/linux/IniFile.h"

namespace vantle {

/// Preferences in an INI file of their own, which is read at each call.
class IniPreferencesDomain final : public PreferencesDomain {
public:
    explicit IniPreferencesDomain(const Url& file) : file_(file) {}

    std::optional<PreferenceValue> value(const std::string& key) const override {
        if (const auto found = waiting_.find(key); found != waiting_.end()) return found->second;
        return file_.load().value(key);
    }
    void setValue(const std::string& key, const PreferenceValue& value) override {
        waiting_.insert_or_assign(key, value);
    }
    void synchronize() override {
        const auto values = std::exchange(waiting_, {});
        // The file logs a failure; callers that need to know read the value back.
        if (!values.empty()) (void)file_.store(values);
    }
    std::string obstacle(const std::string&) const override { return {}; }
    std::string origin(const std::string& key) const override {
        return value(key) ? "a setting of Vantle's own" : "";
    }
    // Only this program sets these values, so there is nothing to restore.
    std::optional<PreferenceValue> previousValue(const std::string&) const override { return {}; }
    void restore(const std::string&) override {}

private:
    IniFile file_;
    std::map<std::string, PreferenceValue> waiting_;
};

}  // namespace vantle
