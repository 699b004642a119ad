#pragma once

#include <QByteArray>
#include <QDBusConnection>
#include <vector>

#include "support/Url.h"

namespace vantle {

/// Passes files to programs in a sandbox, which cannot open them by their addresses: they get a key
/// instead, and the desktop's document portal makes the files appear to whoever has that. Main
/// thread only.
class FileTransferPortal {
public:
    explicit FileTransferPortal(const QDBusConnection& bus = QDBusConnection::sessionBus())
        : bus_(bus) {}

    /// Whether this desktop has one that runs. Asks the bus and waits for its answer.
    bool isThere() const;

    /// A key for the files, which they can be read by as long as the session lasts; empty when
    /// there is none. Waits for the portal, a second at most for each question.
    QByteArray keyFor(const std::vector<Url>& files) const;

private:
    QDBusConnection bus_;
};

}  // namespace vantle
