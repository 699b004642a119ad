#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QObject>
#include <QVariantMap>

namespace vantle {

/// The part of a desktop's portal that shows file choosers. The test answers in the user's place.
class FileChooserPortal final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.FileChooser")
    Q_PROPERTY(uint version MEMBER version)

public:
    explicit FileChooserPortal(QDBusConnection bus) : bus_(std::move(bus)) {
        bus_.registerObject(path, this, QDBusConnection::ExportAllContents);
        bus_.registerService(service);
    }
    ~FileChooserPortal() override {
        bus_.unregisterObject(path);
        bus_.unregisterService(service);
    }

    void respond(uint response, const QVariantMap& results) {
        auto message = QDBusMessage::createSignal(
            handle, QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Response"));
        message << response << results;
        bus_.send(message);
    }

    uint version = 4;
    bool refuses = false;
    QString title;
    QVariantMap options;
    QString handle;  ///< The handle of the latest request.

public slots:
    QDBusObjectPath OpenFile(const QString&, const QString& asked, const QVariantMap& wished) {
        if (refuses) {
            sendErrorReply(QDBusError::Failed, QStringLiteral("not today"));
            return {};
        }
        title = asked;
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

}  // namespace vantle
