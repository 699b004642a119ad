#pragma once

#include <QDBusConnection>

#include "platform/qt/FileTransfer.h"

namespace vantle {

/// The desktop's document portal. Main thread only.
class FileTransferPortal final : public FileTransfer {
public:
    explicit FileTransferPortal(const QDBusConnection& bus = QDBusConnection::sessionBus())
        : bus_(bus) {}

    bool isAvailable() const override;
    QByteArray keyFor(const std::vector<Url>& files) const override;

private:
    QDBusConnection bus_;
};

}  // namespace vantle
