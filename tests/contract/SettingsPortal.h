#pragma once

#include <QDBusConnection>
#include <QDBusMetaType>
#include <QObject>
#include <QVariantMap>
#include <QtDBus/QDBusVariant>

namespace vantle {

/// The part of a desktop's settings portal that tells programs how to look.
class SettingsPortal final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    using Settings = QMap<QString, QVariantMap>;

    explicit SettingsPortal(QDBusConnection bus) {
        qRegisterMetaType<QDBusVariant>();
        qDBusRegisterMetaType<Settings>();
        bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
                           QDBusConnection::ExportAllContents);
        isThere_ = bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }

    bool isThere() const { return isThere_; }

    void set(const QString& space, const QString& key, const QVariant& value) {
        settings_[space][key] = value;
        emit SettingChanged(space, key, QDBusVariant(value));
    }

public slots:
    QMap<QString, QVariantMap> ReadAll(const QStringList& spaces) const {
        Settings found;
        for (const QString& space : spaces)
            if (settings_.contains(space)) found[space] = settings_[space];
        return found;
    }

signals:
    void SettingChanged(const QString& space, const QString& key, const QDBusVariant& value);

private:
    Settings settings_;
    bool isThere_ = false;
};

}  // namespace vantle
