#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QTemporaryDir>
#include <QUuid>

namespace vantle {

/// A message bus of its own, for as long as it lives.
class PrivateBus {
public:
    PrivateBus() {
        process_.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--session"), QStringLiteral("--nofork"),
                        QStringLiteral("--print-address"),
                        QStringLiteral("--address=unix:path=%1/bus").arg(folder_.path())});
        while (!process_.canReadLine() && process_.waitForReadyRead(30'000)) {
        }
        address_ = QString::fromUtf8(process_.readLine().trimmed());
    }
    ~PrivateBus() {
        process_.kill();
        process_.waitForFinished();
    }

    /// A connection of its own each time.
    QDBusConnection connect() const {
        return QDBusConnection::connectToBus(address_, QUuid::createUuid().toString());
    }

private:
    QTemporaryDir folder_;
    QProcess process_;
    QString address_;
};

}  // namespace vantle
