#pragma once

#include <unistd.h>

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMetaType>
#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QObject>
#include <QStringList>
#include <QVariantMap>
#include <QtDBus/QDBusObjectPath>
#include <algorithm>

namespace vantle {

/// The part of a file manager that shows files for other programs.
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
    QStringList properties;  ///< The properties of the shown files.

public slots:
    void ShowItemProperties(const QStringList& addresses, const QString&) {
        properties = addresses;
    }
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

    /// The paths of the files, folders and pages that were opened.
    QStringList opened;
    QStringList openedFolders;
    QStringList openedPages;
    bool refuses = false;

public slots:
    QDBusObjectPath OpenFile(const QString&, const QDBusUnixFileDescriptor& file,
                             const QVariantMap&) {
        if (refuses) sendErrorReply(QDBusError::AccessDenied, QStringLiteral("not allowed"));
        opened << pathOf(file);
        return QDBusObjectPath(QStringLiteral("/request"));
    }
    QDBusObjectPath OpenURI(const QString&, const QString& address, const QVariantMap&) {
        openedPages << address;
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

/// The part of the document portal that passes files to programs in a sandbox.
class DocumentPortal final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.FileTransfer")

public:
    explicit DocumentPortal(QDBusConnection bus) {
        qDBusRegisterMetaType<QList<QDBusUnixFileDescriptor>>();
        bus.registerObject(QStringLiteral("/org/freedesktop/portal/documents"), this,
                           QDBusConnection::ExportAllSlots);
        bus.registerService(QStringLiteral("org.freedesktop.portal.Documents"));
    }

    QMap<QString, QStringList> transfers;  ///< The paths by their keys.
    int maximumMessage = 0;                ///< The highest number of files in one message.

public slots:
    QString StartTransfer(const QVariantMap& options) {
        const QString key = QStringLiteral("key %1").arg(transfers.size() + 1);
        if (!options[QStringLiteral("autostop")].toBool()) transfers[key] = {};
        return key;
    }
    void AddFiles(const QString& key, const QList<QDBusUnixFileDescriptor>& files,
                  const QVariantMap&) {
        maximumMessage = std::max(maximumMessage, static_cast<int>(files.size()));
        for (const auto& file : files)
            transfers[key] << QFile::symLinkTarget(
                QStringLiteral("/proc/self/fd/%1").arg(file.fileDescriptor()));
    }
};

}  // namespace vantle
