#pragma once

#include <map>
#include <optional>
#include <string>

#include "platform/PreferencesDomain.h"

namespace vantle::fakes {

/// Another program's settings in memory.
class FakePreferencesDomain final : public PreferencesDomain {
public:
    std::optional<PreferenceValue> value(const std::string& key) const override {
        const auto found = values.find(key);
        if (found == values.end()) return std::nullopt;
        return found->second;
    }
    void setValue(const std::string& key, const PreferenceValue& value) override {
        if (obstacle(key).empty()) values.insert_or_assign(key, value);
    }
    void synchronize() override { ++synchronizations; }
    std::string obstacle(const std::string& key) const override {
        const auto found = obstacles.find(key);
        return found == obstacles.end() ? "" : found->second;
    }
    std::string origin(const std::string& key) const override {
        return values.contains(key) ? "a setting in memory" : "";
    }
    std::optional<PreferenceValue> previousValue(const std::string& key) const override {
        const auto found = previousValues.find(key);
        if (found == previousValues.end()) return std::nullopt;
        return found->second;
    }
    void restore(const std::string& key) override {
        if (const auto found = previousValues.extract(key))
            values.insert_or_assign(key, found.mapped());
    }

    std::map<std::string, PreferenceValue> values;
    std::map<std::string, std::string> obstacles;
    std::map<std::string, PreferenceValue> previousValues;
    int synchronizations = 0;
};

}  // namespace vantle::fakes
