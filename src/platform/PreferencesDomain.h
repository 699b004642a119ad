#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/PreferenceValue.h"

namespace vantle {

/// The settings of another program, by key. Main thread only.
class PreferencesDomain {
public:
    virtual ~PreferencesDomain() = default;

    /// Called when a stored value may have changed, but not through this object. Set by the object
    /// that shows the values.
    std::function<void()> onChange;

    /// Returns the stored value with its stored type; absent if there is none. Reads anew at each
    /// call, so that changes made by other programs are seen.
    virtual std::optional<PreferenceValue> value(const std::string& key) const = 0;

    /// Sets the value, which takes effect at synchronize() at the latest.
    virtual void setValue(const std::string& key, const PreferenceValue& value) = 0;

    /// Writes the values that were set. Reports no failures: a caller that must know reads the
    /// value back.
    virtual void synchronize() = 0;

    /// Returns a sentence for the user that says why the key cannot be changed; empty if it can.
    virtual std::string obstacle(const std::string& key) const = 0;

    /// Returns where the value of the key comes from, in English, for reports of faults; empty if
    /// it has no value.
    virtual std::string origin(const std::string& key) const = 0;

    /// Returns the value that the key had before it was set here. Absent if it was not set here, if
    /// another program has changed it since, or if the value is the same again.
    virtual std::optional<PreferenceValue> previousValue(const std::string& key) const = 0;

    /// Restores the previous value as it was stored, at once. Does nothing if there is none.
    virtual void restore(const std::string& key) = 0;
};

}  // namespace vantle
