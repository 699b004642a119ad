#pragma once

#include <QDBusConnection>
#include <QMap>
#include <QObject>
#include <QVariantMap>
#include <QtDBus/QDBusVariant>

#include "platform/DesktopAppearance.h"

class QDBusPendingCallWatcher;

namespace vantle {

/// Reads the desktop portal's settings (org.freedesktop.portal.Settings) and follows changes of
/// them: the colour scheme and accent colour, which are the same on all desktops, and the setting
/// for reduced motion of GNOME, KDE and newer portals. Never waits. Without a bus or a portal
/// nothing is known.
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
