#pragma once

#include <map>
#include <string>
#include <utility>

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

    /// Sets these keys and leaves the rest of the file as others may have changed it meanwhile.
    /// All of them stand on disk when it returns, or none; a failure is logged once.
    Outcome store(const std::map<std::string, PreferenceValue>& values);

private:
    Result<IniDocument> read() const;
    Result<IniDocument> keepDamagedAside() const;
    void complain(const std::string& message) const;

    Url file_;
    mutable bool complained_ = false;
};

}  // namespace vantle
