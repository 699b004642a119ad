#pragma once

#include <map>
#include <optional>
#include <string>

#include "platform/PreferenceValue.h"

namespace vantle {

/// The program's own stored settings. Main thread only.
///
/// A read returns the stored value, or else the registered default, or else false, 0 or nothing. A
/// value of another type is converted if that is meaningful (a number other than 0 is true). A
/// write is stored when it returns. If a write fails, the backend logs that once, and the value is
/// kept for this run. If the store is damaged, its readable part is used, the damaged store is kept
/// under another name, and one line is logged. If the store exists but holds nothing, its last copy
/// is used.
class UserDefaults {
public:
    virtual ~UserDefaults() = default;

    /// Adds defaults, which are not stored but are read if nothing is stored.
    virtual void registerDefaults(const std::map<std::string, PreferenceValue>& defaults) = 0;

    virtual bool boolean(const std::string& key) const = 0;
    virtual double number(const std::string& key) const = 0;
    virtual std::optional<std::string> text(const std::string& key) const = 0;

    virtual void set(const std::string& key, const PreferenceValue& value) = 0;
};

}  // namespace vantle
