#pragma once

#include <QByteArray>
#include <vector>

#include "support/Url.h"

namespace vantle {

/// Passes files to programs in a sandbox, which cannot open them by their addresses: they get a key
/// instead, and the desktop makes the files appear to whoever has that. Main thread only.
class FileTransfer {
public:
    virtual ~FileTransfer() = default;

    /// Whether this desktop can do that now. Waits for its answer.
    virtual bool isThere() const = 0;

    /// A key for the files, which they can be read by as long as the session lasts; empty when
    /// there is none. Waits a second at most for each answer.
    virtual QByteArray keyFor(const std::vector<Url>& files) const = 0;
};

}  // namespace vantle
