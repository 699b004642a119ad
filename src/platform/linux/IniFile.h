#pragma once

#include <map>
#include <string>
#include <utility>

#include "platform/PreferenceValue.h"
#include "platform/linux/IniDocument.h"
#include "support/Result.h"
#include "support/Url.h"

namespace vantle {

/// An INI file on disk. Of a damaged one counts what can be read; the rest is kept aside under
/// another name, and is logged. One that cannot be read counts as empty, is never overwritten, and
/// is logged once.
class IniFile {
public:
    explicit IniFile(Url file) : file_(std::move(file)) {}

    /// What the file holds now; empty when it does not exist.
    IniDocument load() const;

    /// Sets these keys and leaves the rest of the file as others may have changed it meanwhile; of
    /// a file that is damaged, empty or gone, `memory` is the rest, if there is any. All of them
    /// stand on disk when it returns, or none; a failure is logged once.
    Outcome store(const std::map<std::string, PreferenceValue>& values,
                  const IniDocument& memory = {});

    /// Whether there is one that can be read, whatever it holds.
    bool canBeRead() const;

private:
    Result<IniDocument> read() const;
    Outcome keepDamagedAside() const;
    void complain(const std::string& message, const std::string& reason) const;

    Url file_;
    mutable bool complained_ = false;
};

}  // namespace vantle
