#pragma once

#include <QDBusConnection>
#include <QObject>
#include <optional>

#include "platform/ProcessLauncher.h"
#include "platform/SharingSource.h"

namespace vantle {

/// Offers the desktop's own dialog for sending files over Bluetooth, if the machine has an adapter.
class BluetoothSharing final : public QObject, public SharingSource {
    Q_OBJECT

public:
    /// `launcher` must outlive this object; `bus` is the system bus unless it is given.
    explicit BluetoothSharing(ProcessLauncher& launcher, std::optional<QDBusConnection> bus = {});

    void find(Found found) override;

private:
    void send(const std::vector<Url>& files);

    ProcessLauncher& launcher_;
    const std::optional<QDBusConnection> bus_;
};

}  // namespace vantle
