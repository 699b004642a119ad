#pragma once

#include <map>
#include <string>
#include <utility>

#include "platform/PreferencesDomain.h"
#include "platform/linux/IniFile.h"

namespace vantle {

/// Preferences in an INI file of their own, read anew at each call.
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
        // A failure is logged by the file; who needs to know reads the value back.
        if (!values.empty()) (void)file_.store(values);
    }
    std::string obstacle(const std::string&) const override { return {}; }
    std::string origin(const std::string& key) const override {
        return value(key) ? "a setting of Vantle's own" : "";
    }
    // Nobody but this program sets them: there is nothing to go back to.
    std::optional<PreferenceValue> previousValue(const std::string&) const override { return {}; }
    void restore(const std::string&) override {}

private:
    IniFile file_;
    std::map<std::string, PreferenceValue> waiting_;
};

}  // namespace vantle
