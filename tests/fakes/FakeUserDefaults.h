#pragma once

#include <map>
#include <optional>
#include <string>

#include "platform/PreferenceConversion.h"
#include "platform/UserDefaults.h"

namespace vantle::fakes {

/// Stored settings in memory.
class FakeUserDefaults final : public UserDefaults {
public:
    void registerDefaults(const std::map<std::string, PreferenceValue>& defaults) override {
        for (const auto& [key, value] : defaults) registered_.insert_or_assign(key, value);
    }
    bool boolean(const std::string& key) const override {
        return value(key, asBoolean).value_or(false);
    }
    double number(const std::string& key) const override {
        return value(key, asNumber).value_or(0);
    }
    std::optional<std::string> text(const std::string& key) const override {
        return value(key, asText);
    }
    void set(const std::string& key, const PreferenceValue& value) override {
        stored.insert_or_assign(key, value);
    }

    std::map<std::string, PreferenceValue> stored;

private:
    template <typename T>
    std::optional<T> value(const std::string& key,
                           std::optional<T> (*meaning)(const PreferenceValue&)) const {
        for (const auto* values : {&stored, &registered_})
            if (const auto found = values->find(key); found != values->end())
                if (auto meant = meaning(found->second)) return meant;
        return std::nullopt;
    }

    std::map<std::string, PreferenceValue> registered_;
};

}  // namespace vantle::fakes
