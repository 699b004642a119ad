#pragma once

#include <QDBusConnection>
#include <QObject>

#include "platform/SharingSource.h"

namespace vantle {

/// The devices within reach that are paired with GSConnect, GNOME's counterpart of KDE Connect.
class GsConnectSharing final : public QObject, public SharingSource {
    Q_OBJECT

public:
    explicit GsConnectSharing(const QDBusConnection& bus = QDBusConnection::sessionBus());

    void find(Found found) override;

private:
    void send(const QString& devicePath, const std::vector<Url>& files);

    const QDBusConnection bus_;
};

}  // namespace vantle
