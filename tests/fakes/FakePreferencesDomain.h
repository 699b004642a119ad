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
        values.insert_or_assign(key, value);
    }
    void synchronize() override { ++synchronizations; }

    std::map<std::string, PreferenceValue> values;
    int synchronizations = 0;
};

}  // namespace vantle::fakes
