#pragma once

#include <map>
#include <optional>
#include <string>

#include "platform/PreferenceValue.h"

namespace vantle {

/// The program's own stored settings. Main thread only.
///
/// A read gives the stored value, else the registered default, else false, 0 or absent; a value
/// of another type is converted as far as it means something (a number to bool: not 0). A write
/// is stored when it returns; a write that fails is logged by the backend once and the value
/// holds for this run. Of a damaged store counts what can be read; it is kept aside and logged with
/// one line. One that is there and holds nothing is taken from its last copy.
class UserDefaults {
public:
    virtual ~UserDefaults() = default;

    /// Adds to the defaults that are not stored but read where nothing is.
    virtual void registerDefaults(const std::map<std::string, PreferenceValue>& defaults) = 0;

    virtual bool boolean(const std::string& key) const = 0;
    virtual double number(const std::string& key) const = 0;
    virtual std::optional<std::string> text(const std::string& key) const = 0;

    virtual void set(const std::string& key, const PreferenceValue& value) = 0;
};

}  // namespace vantle
