#pragma once

#include <unistd.h>

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QObject>
#include <QStringList>
#include <QVariantMap>
#include <QtDBus/QDBusObjectPath>

namespace vantle {

/// A file manager, as far as others ask it to show files.
class FileManagerService final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    explicit FileManagerService(QDBusConnection bus) {
        bus.registerObject(QStringLiteral("/org/freedesktop/FileManager1"), this,
                           QDBusConnection::ExportAllSlots);
        bus.registerService(QStringLiteral("org.freedesktop.FileManager1"));
    }

    QStringList shown;

public slots:
    void ShowItems(const QStringList& addresses, const QString&) { shown = addresses; }
};

/// A portal that opens files for programs in a sandbox.
class OpenPortal final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.OpenURI")

public:
    explicit OpenPortal(QDBusConnection bus) {
        bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
                           QDBusConnection::ExportAllSlots);
        bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }

    /// The paths of what was passed.
    QStringList opened;
    QStringList openedFolders;
    bool refuses = false;

public slots:
    QDBusObjectPath OpenFile(const QString&, const QDBusUnixFileDescriptor& file,
                             const QVariantMap&) {
        if (refuses) sendErrorReply(QDBusError::AccessDenied, QStringLiteral("not allowed"));
        opened << pathOf(file);
        return QDBusObjectPath(QStringLiteral("/request"));
    }
    QDBusObjectPath OpenDirectory(const QString&, const QDBusUnixFileDescriptor& file,
                                  const QVariantMap&) {
        openedFolders << pathOf(file);
        return QDBusObjectPath(QStringLiteral("/request"));
    }

private:
    static QString pathOf(const QDBusUnixFileDescriptor& file) {
        return QFile::symLinkTarget(QStringLiteral("/proc/self/fd/%1").arg(file.fileDescriptor()));
    }
};

}  // namespace vantle
