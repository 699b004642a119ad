#pragma once

#include <map>
#include <optional>
#include <string>

#include "platform/UserDefaults.h"

namespace vantle::fakes {

/// Stored settings in memory.
class FakeUserDefaults final : public UserDefaults {
public:
    void registerDefaults(const std::map<std::string, PreferenceValue>& defaults) override {
        for (const auto& [key, value] : defaults) registered_.insert_or_assign(key, value);
    }
    bool boolean(const std::string& key) const override { return value<bool>(key).value_or(false); }
    double number(const std::string& key) const override { return value<double>(key).value_or(0); }
    std::optional<std::string> text(const std::string& key) const override {
        return value<std::string>(key);
    }
    void set(const std::string& key, const PreferenceValue& value) override {
        stored.insert_or_assign(key, value);
    }

    std::map<std::string, PreferenceValue> stored;

private:
    template <typename T>
    std::optional<T> value(const std::string& key) const {
        for (const auto* values : {&stored, &registered_})
            if (const auto found = values->find(key); found != values->end())
                if (const auto* typed = std::get_if<T>(&found->second)) return *typed;
        return std::nullopt;
    }

    std::map<std::string, PreferenceValue> registered_;
};

}  // namespace vantle::fakes
