#pragma once

#include <QDBusConnection>
#include <QObject>
#include <optional>

#include "platform/ProcessLauncher.h"
#include "platform/SharingSource.h"

namespace vantle {

/// The desktop's own dialog that sends files over Bluetooth, where this machine has an adapter.
class BluetoothSharing final : public QObject, public SharingSource {
    Q_OBJECT

public:
    /// `launcher` outlives it; `bus` is the system's unless it is given.
    explicit BluetoothSharing(ProcessLauncher& launcher, std::optional<QDBusConnection> bus = {});

    void find(Found found) override;

private:
    void send(const std::vector<Url>& files);

    ProcessLauncher& launcher_;
    const std::optional<QDBusConnection> bus_;
};

}  // namespace vantle
