#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QObject>
#include <QVariantMap>

namespace vantle {

/// The part of a desktop's portal that lets the user choose a program for a file. The test answers
/// in the user's place.
class OpenWithPortal final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.OpenURI")
    Q_PROPERTY(uint version MEMBER version)

public:
    explicit OpenWithPortal(QDBusConnection bus) : bus_(std::move(bus)) {
        bus_.registerObject(path, this, QDBusConnection::ExportAllContents);
        bus_.registerService(service);
    }
    ~OpenWithPortal() override {
        bus_.unregisterObject(path);
        bus_.unregisterService(service);
    }

    void respond(uint response) {
        auto message = QDBusMessage::createSignal(
            handle, QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Response"));
        message << response << QVariantMap();
        handle.clear();
        bus_.send(message);
    }

    uint version = 4;
    bool refuses = false;
    QString file;  ///< The path of the file of the latest request.
    QVariantMap options;
    QString handle;  ///< The handle of the request that is open; empty if there is none.

public slots:
    QDBusObjectPath OpenFile(const QString&, const QDBusUnixFileDescriptor& descriptor,
                             const QVariantMap& wished) {
        if (refuses) {
            sendErrorReply(QDBusError::Failed, QStringLiteral("not today"));
            return {};
        }
        file = QFile::symLinkTarget(
            QStringLiteral("/proc/self/fd/%1").arg(descriptor.fileDescriptor()));
        options = wished;
        const QString sender =
            message().service().mid(1).replace(QLatin1Char('.'), QLatin1Char('_'));
        handle = path + QStringLiteral("/request/") + sender + QLatin1Char('/') +
                 wished[QStringLiteral("handle_token")].toString();
        return QDBusObjectPath(handle);
    }

private:
    const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
    const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
    QDBusConnection bus_;
};

/// A program that the message bus starts to open files.
class ApplicationOnBus final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    ApplicationOnBus(QDBusConnection bus, const QString& name, const QString& path) {
        bus.registerObject(path, this, QDBusConnection::ExportAllSlots);
        bus.registerService(name);
    }

    QStringList opened;  ///< Addresses.
    QVariantMap data;

public slots:
    void Open(const QStringList& addresses, const QVariantMap& platformData) {
        opened = addresses;
        data = platformData;
    }
};

}  // namespace vantle
