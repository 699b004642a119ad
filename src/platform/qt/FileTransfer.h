#pragma once

#include <QByteArray>
#include <vector>

#include "support/Url.h"

namespace vantle {

/// Passes files to programs in a sandbox, which cannot open them by their addresses. These get a
/// key instead, and the desktop makes the files accessible to every program that has it. Main
/// thread only.
class FileTransfer {
public:
    virtual ~FileTransfer() = default;

    /// Returns true if this desktop offers that now. Waits for the desktop's answer.
    virtual bool isAvailable() const = 0;

    /// Returns a key by which the files can be read as long as the session lasts; empty if there is
    /// none. Waits for each answer for a second at most.
    virtual QByteArray keyFor(const std::vector<Url>& files) const = 0;
};

}  // namespace vantle
