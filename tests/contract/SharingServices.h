#pragma once

#include <QDBusConnection>
#include <QDBusMetaType>
#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include "platform/freedesktop/sharing/ManagedObjects.h"

// What programs that take files offer on the message bus, as far as others use it.
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

/// Tells what a service has.
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
    /// Addresses; a file that is to be opened at the other end has a "!" in front.
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

    QList<QByteArray> attached;  ///< The contents.

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
