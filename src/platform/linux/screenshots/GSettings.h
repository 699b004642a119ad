#pragma once

#include <string>

#include "support/Result.h"

namespace vantle {

/// The settings of GNOME and its relatives: text under a key of a schema. Calls are made by one
/// thread at a time.
class GSettings {
public:
    virtual ~GSettings() = default;

    /// Fails when there is no such schema or key, or nothing that could tell.
    virtual Result<std::string> text(const std::string& schema, const std::string& key) const = 0;

    virtual Outcome setText(const std::string& schema, const std::string& key,
                            const std::string& text) = 0;

    /// Back to the default of the schema.
    virtual Outcome reset(const std::string& schema, const std::string& key) = 0;

    /// False also when there is no such key.
    virtual bool isWritable(const std::string& schema, const std::string& key) const = 0;
};

}  // namespace vantle
