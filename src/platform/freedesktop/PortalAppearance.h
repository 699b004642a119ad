#pragma once

#include <QDBusConnection>
#include <QMap>
#include <QObject>
#include <QVariantMap>
#include <QtDBus/QDBusVariant>

#include "platform/DesktopAppearance.h"

class QDBusPendingCallWatcher;

namespace vantle {

/// Asks the desktop portal's settings (org.freedesktop.portal.Settings) and follows them: the
/// colour scheme and the accent colour as every desktop tells them, and the wish for less motion as
/// GNOME, KDE and newer portals tell it. Never waits. Without a bus or a portal nothing is known.
class PortalAppearance final : public QObject, public DesktopAppearance {
    Q_OBJECT

public:
    explicit PortalAppearance(const QDBusConnection& bus = QDBusConnection::sessionBus());

private slots:
    void settingChanged(const QString& space, const QString& key, const QDBusVariant& value);

private:
    void ask(const QDBusConnection& bus);
    void answered(QDBusPendingCallWatcher& call);
    void publish();

    QMap<QString, QVariantMap> settings_;
};

}  // namespace vantle
