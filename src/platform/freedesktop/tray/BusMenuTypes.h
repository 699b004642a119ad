#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QDBusVariant>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace vantle {

// The types of the interfaces org.kde.StatusNotifierItem and com.canonical.dbusmenu, each with its
// signature on the bus.

/// (iiay): a picture with pixels of alpha, red, green, blue, not premultiplied.
struct BusPixmap {
    int width = 0;
    int height = 0;
    QByteArray pixels;
};
using BusPixmaps = QList<BusPixmap>;

/// (sa(iiay)ss)
struct BusToolTip {
    QString iconName;
    BusPixmaps icon;
    QString title;
    QString description;
};

/// (ia{sv})
struct BusMenuProperties {
    int id = 0;
    QVariantMap properties;
};
using BusMenuPropertiesList = QList<BusMenuProperties>;

/// (ias)
struct BusMenuRemovedProperties {
    int id = 0;
    QStringList names;
};
using BusMenuRemovedPropertiesList = QList<BusMenuRemovedProperties>;

/// (ia{sv}av)
struct BusMenuLayout {
    int id = 0;
    QVariantMap properties;
    QList<BusMenuLayout> children;
};

/// (isvu)
struct BusMenuEvent {
    int id = 0;
    QString name;
    QDBusVariant data;
    uint timestamp = 0;
};
using BusMenuEvents = QList<BusMenuEvent>;

/// aas: each entry has the names of the keys that are pressed together.
using BusShortcut = QList<QStringList>;

QDBusArgument& operator<<(QDBusArgument& argument, const BusPixmap& value);
const QDBusArgument& operator>>(const QDBusArgument& argument, BusPixmap& value);
QDBusArgument& operator<<(QDBusArgument& argument, const BusToolTip& value);
const QDBusArgument& operator>>(const QDBusArgument& argument, BusToolTip& value);
QDBusArgument& operator<<(QDBusArgument& argument, const BusMenuProperties& value);
const QDBusArgument& operator>>(const QDBusArgument& argument, BusMenuProperties& value);
QDBusArgument& operator<<(QDBusArgument& argument, const BusMenuRemovedProperties& value);
const QDBusArgument& operator>>(const QDBusArgument& argument, BusMenuRemovedProperties& value);
QDBusArgument& operator<<(QDBusArgument& argument, const BusMenuLayout& value);
const QDBusArgument& operator>>(const QDBusArgument& argument, BusMenuLayout& value);
QDBusArgument& operator<<(QDBusArgument& argument, const BusMenuEvent& value);
const QDBusArgument& operator>>(const QDBusArgument& argument, BusMenuEvent& value);

/// Registers the types with Qt. Must be called before any of them is passed.
void registerBusMenuTypes();

}  // namespace vantle

Q_DECLARE_METATYPE(vantle::BusPixmap)
Q_DECLARE_METATYPE(vantle::BusPixmaps)
Q_DECLARE_METATYPE(vantle::BusToolTip)
Q_DECLARE_METATYPE(vantle::BusMenuProperties)
Q_DECLARE_METATYPE(vantle::BusMenuPropertiesList)
Q_DECLARE_METATYPE(vantle::BusMenuRemovedProperties)
Q_DECLARE_METATYPE(vantle::BusMenuRemovedPropertiesList)
Q_DECLARE_METATYPE(vantle::BusMenuLayout)
Q_DECLARE_METATYPE(vantle::BusMenuEvent)
Q_DECLARE_METATYPE(vantle::BusMenuEvents)
