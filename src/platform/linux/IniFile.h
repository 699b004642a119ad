#pragma once

#include <string>

#include "platform/PreferenceValue.h"
#include "platform/linux/IniDocument.h"
#include "support/Result.h"
#include "support/Url.h"

namespace vantle {

/// An INI file on disk. A damaged one counts as empty, is kept aside under another name, and is
/// logged; one that cannot be read counts as empty, is never overwritten, and is logged once.
class IniFile {
public:
    explicit IniFile(Url file) : file_(std::move(file)) {}

    /// What the file holds now; empty when it does not exist.
    IniDocument load() const;

    /// Sets one key and leaves the rest of the file as others may have changed it meanwhile. What
    /// it says stands on disk when it returns; a failure is logged once.
    Outcome store(const std::string& key, const PreferenceValue& value);

private:
    Result<IniDocument> read() const;
    Result<IniDocument> keepDamagedAside() const;
    void complain(const std::string& message) const;

    Url file_;
    mutable bool complained_ = false;
};

}  // namespace vantle
