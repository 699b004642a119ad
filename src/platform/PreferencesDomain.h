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

    /// What is stored may have changed, and nobody here did it. Set by who shows it.
    std::function<void()> onChange;

    /// The stored value with the type that it has there; absent when there is none. Reads anew at
    /// each call, so that a change made by others is seen.
    virtual std::optional<PreferenceValue> value(const std::string& key) const = 0;

    /// Takes effect at synchronize(), at the latest.
    virtual void setValue(const std::string& key, const PreferenceValue& value) = 0;

    /// Writes what was set. Failures are silent here: who needs to know reads the value back.
    virtual void synchronize() = 0;

    /// Why the key cannot be changed, as a sentence for a person; empty when it can.
    virtual std::string obstacle(const std::string& key) const = 0;

    /// Where the value of the key comes from, in English, for reports of faults; empty when it has
    /// none.
    virtual std::string origin(const std::string& key) const = 0;

    /// What the key was before it was set here. Absent when it was not, when others have changed it
    /// since, and when it is the same again.
    virtual std::optional<PreferenceValue> previousValue(const std::string& key) const = 0;

    /// Puts the previous value back as it was stored, at once. Without one nothing happens.
    virtual void restore(const std::string& key) = 0;
};

}  // namespace vantle
