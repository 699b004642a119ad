#pragma once

#include <map>
#include <string>
#include <utility>

#include "platform/PreferenceValue.h"
#include "platform/linux/IniDocument.h"
#include "support/Result.h"
#include "support/Url.h"

namespace vantle {

/// An INI file on disk. A damaged file is renamed and logged; what can be read of it is used and
/// takes its place. A file that cannot be read counts as empty, is never overwritten, and is logged
/// once.
class IniFile {
public:
    explicit IniFile(Url file) : file_(std::move(file)) {}

    /// Returns the current contents, or an empty document if the file does not exist.
    IniDocument load() const;

    /// Sets these keys and keeps the rest of the file, including changes that others have made. If
    /// the file is damaged, empty or gone and `memory` is not empty, the rest comes from `memory`.
    /// On return either all keys are on disk or none; a failure is logged once.
    Outcome store(const std::map<std::string, PreferenceValue>& values,
                  const IniDocument& memory = {});

    /// Returns true if the file exists and can be read, whatever it contains.
    bool canBeRead() const;

private:
    Result<IniDocument> read() const;
    Outcome renameDamaged() const;
    void logOnce(const std::string& message, const std::string& reason) const;

    Url file_;
    mutable bool hasLogged_ = false;
};

}  // namespace vantle
