#pragma once

#include <QDBusConnection>
#include <QDBusMetaType>
#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include "platform/freedesktop/sharing/ManagedObjects.h"

// Programs that accept files, with the parts of their interfaces on the message bus that others
// use.
namespace vantle {

class KdeConnectDaemon final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.kdeconnect.daemon")

public:
    using Names = QMap<QString, QString>;
    Names names;

public slots:
    QMap<QString, QString> deviceNames(bool onlyReachable, bool onlyPaired) const {
        return onlyReachable && onlyPaired ? names : Names();
    }
};

class KdeConnectDevice final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.kdeconnect.device.share")

public:
    QStringList received;

public slots:
    void shareUrl(const QString& address) { received << address; }
};

class KdeConnectService {
public:
    explicit KdeConnectService(QDBusConnection bus) {
        qDBusRegisterMetaType<KdeConnectDaemon::Names>();
        bus.registerObject(QStringLiteral("/modules/kdeconnect"), &daemon,
                           QDBusConnection::ExportAllSlots);
        bus.registerObject(QStringLiteral("/modules/kdeconnect/devices/b1/share"), &device,
                           QDBusConnection::ExportAllSlots);
        bus.registerService(QStringLiteral("org.kde.kdeconnect"));
    }

    KdeConnectDaemon daemon;
    KdeConnectDevice device;
};

/// Lists the objects of a service.
class ObjectManager final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.DBus.ObjectManager")

public:
    ObjectManager(QDBusConnection bus, const char* service, const char* path) {
        qDBusRegisterMetaType<QMap<QString, QVariantMap>>();
        qDBusRegisterMetaType<ManagedObjects>();
        bus.registerObject(QString::fromLatin1(path), this, QDBusConnection::ExportAllSlots);
        bus.registerService(QString::fromLatin1(service));
    }

    ManagedObjects objects;

public slots:
    vantle::ManagedObjects GetManagedObjects() const { return objects; }
};

class GsConnectDevice final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.gtk.Actions")

public:
    /// The received addresses; those to be opened at the other end have a "!" in front.
    QStringList received;

public slots:
    void Activate(const QString& action, const QVariantList& parameters, const QVariantMap&) {
        if (action != QStringLiteral("shareFile") || parameters.size() != 1) return;
        const auto structure = parameters[0].value<QDBusArgument>();
        QString address;
        bool opens = true;
        structure.beginStructure();
        structure >> address >> opens;
        structure.endStructure();
        received << (opens ? QStringLiteral("!") : QString()) + address;
    }
};

class EmailPortal final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Email")
    Q_PROPERTY(uint version READ version)

public:
    explicit EmailPortal(QDBusConnection bus) {
        bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
                           QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllProperties);
        bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }
    uint version() const { return 3; }

    QList<QByteArray> attached;  ///< The contents of the files.

public slots:
    QDBusObjectPath ComposeEmail(const QString&, const QVariantMap& options) {
        const auto files =
            qdbus_cast<QList<QDBusUnixFileDescriptor>>(options[QStringLiteral("attachment_fds")]);
        for (const auto& descriptor : files) {
            QFile file;
            if (file.open(descriptor.fileDescriptor(), QFile::ReadOnly)) attached << file.readAll();
        }
        return QDBusObjectPath(QStringLiteral("/request"));
    }
};

}  // namespace vantle
