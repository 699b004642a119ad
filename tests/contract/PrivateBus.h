#pragma once

#include <QDBusConnection>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QUuid>

namespace vantle {

/// A private message bus, which ends with this object. It starts none of the services that are
/// installed on this system.
class PrivateBus {
public:
    PrivateBus() {
        const QString configuration = folder_.filePath(QStringLiteral("bus.conf"));
        QFile file(configuration);
        file.open(QIODevice::WriteOnly);
        file.write(settings().toUtf8());
        file.close();
        process_.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                        QStringLiteral("--config-file=%1").arg(configuration)});
        while (!process_.canReadLine() && process_.waitForReadyRead(30'000)) {
        }
        address_ = QString::fromUtf8(process_.readLine().trimmed());
    }
    ~PrivateBus() {
        process_.kill();
        process_.waitForFinished();
    }

    /// Returns a new connection each time.
    QDBusConnection connect() const {
        return QDBusConnection::connectToBus(address_, QUuid::createUuid().toString());
    }

    const QString& address() const { return address_; }

private:
    QString settings() const {
        return QStringLiteral(
                   "<busconfig><type>session</type><listen>unix:path=%1/bus</listen>"
                   "<policy context='default'><allow send_destination='*' eavesdrop='true'/>"
                   "<allow eavesdrop='true'/><allow own='*'/></policy></busconfig>")
            .arg(folder_.path());
    }

    QTemporaryDir folder_;
    QProcess process_;
    QString address_;
};

}  // namespace vantle
