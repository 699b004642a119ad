#pragma once

#include <string>

#include "support/Result.h"

namespace vantle {

/// The settings of GNOME and related desktops: text under a key of a schema. Only one thread may
/// call at a time.
class GSettings {
public:
    virtual ~GSettings() = default;

    /// Fails if there is no such schema or key, or if the settings cannot be read.
    virtual Result<std::string> text(const std::string& schema, const std::string& key) const = 0;

    virtual Outcome setText(const std::string& schema, const std::string& key,
                            const std::string& text) = 0;

    /// Resets the key to the default of the schema.
    virtual Outcome reset(const std::string& schema, const std::string& key) = 0;

    /// Returns false also if there is no such key.
    virtual bool isWritable(const std::string& schema, const std::string& key) const = 0;
};

}  // namespace vantle
