#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/UserDefaults.h"
#include "settings/SettingValue.h"
#include "support/Observers.h"
#include "support/Published.h"

namespace vantle {

/// All settings by name, in the order of their declaration, for code that treats them alike. Main
/// thread only.
class SettingsList {
public:
    /// `defaults` outlives the list.
    explicit SettingsList(UserDefaults& defaults) : defaults_(defaults) {}
    SettingsList(const SettingsList&) = delete;
    SettingsList& operator=(const SettingsList&) = delete;

    UserDefaults& defaults() { return defaults_; }

    struct Entry {
        std::string name;
        /// Returns the value in English, for bug reports.
        std::function<std::string()> text;
        /// Calls `observer` with every later change, before the new value is stored.
        std::function<Subscription(std::function<void()> observer)> observeChanges;
    };

    void add(Entry entry) { entries_.push_back(std::move(entry)); }
    const std::vector<Entry>& entries() const { return entries_; }

private:
    UserDefaults& defaults_;
    std::vector<Entry> entries_;
};

/// A setting that is in the list of all settings. The list outlives it.
template <typename Value>
class ListedSetting : public Published<Value> {
public:
    ListedSetting(SettingsList& list, const std::string& name, Value initial)
        : Published<Value>(std::move(initial)) {
        list.add({name, [this] { return textOf(this->value()); },
                  [this](std::function<void()> observer) {
                      return this->observeChanges(
                          [observer = std::move(observer)](const Value&) { observer(); });
                  }});
    }
};

/// A setting that is stored in the user defaults under its own name. Assigning a value announces
/// it, keeps it here, and then stores it.
template <typename Value>
class StoredSetting : public ListedSetting<Value> {
public:
    /// Called after a value was stored.
    using Effect = std::function<void(const Value&)>;

    /// Without a registered default, a value that was never stored reads as false, as 0 or, for a
    /// choice, as its first case.
    StoredSetting(SettingsList& list, const std::string& name,
                  const std::optional<Value>& registeredDefault = {}, Effect effect = {})
        : ListedSetting<Value>(list, name, initial(list.defaults(), name, registeredDefault)) {
        this->onStored([&list, name, effect = std::move(effect)](const Value& value) {
            list.defaults().set(name, stored(value));
            if (effect) effect(value);
        });
    }

private:
    static Value initial(UserDefaults& defaults, const std::string& name,
                         const std::optional<Value>& registeredDefault) {
        if (registeredDefault) defaults.registerDefaults({{name, stored(*registeredDefault)}});
        return storedValue<Value>(defaults, name);
    }
};

}  // namespace vantle
