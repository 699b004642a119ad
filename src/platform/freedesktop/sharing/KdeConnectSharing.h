#pragma once

#include <QDBusConnection>
#include <QObject>

#include "platform/SharingSource.h"

namespace vantle {

/// The devices within reach that are paired with KDE Connect.
class KdeConnectSharing final : public QObject, public SharingSource {
    Q_OBJECT

public:
    explicit KdeConnectSharing(const QDBusConnection& bus = QDBusConnection::sessionBus());

    void find(Found found) override;

private:
    void send(const QString& device, const std::vector<Url>& files);

    const QDBusConnection bus_;
};

}  // namespace vantle
