#include "platform/freedesktop/tray/BusMenuTypes.h"

#include <QDBusMetaType>

namespace vantle {
namespace {

// A struct is passed as its members in order.

template <typename... Members>
void write(QDBusArgument& argument, const Members&... members) {
    argument.beginStructure();
    (argument << ... << members);
    argument.endStructure();
}

template <typename... Members>
void read(const QDBusArgument& argument, Members&... members) {
    argument.beginStructure();
    (argument >> ... >> members);
    argument.endStructure();
}

}  // namespace

QDBusArgument& operator<<(QDBusArgument& argument, const BusPixmap& value) {
    write(argument, value.width, value.height, value.pixels);
    return argument;
}
const QDBusArgument& operator>>(const QDBusArgument& argument, BusPixmap& value) {
    read(argument, value.width, value.height, value.pixels);
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const BusToolTip& value) {
    write(argument, value.iconName, value.icon, value.title, value.description);
    return argument;
}
const QDBusArgument& operator>>(const QDBusArgument& argument, BusToolTip& value) {
    read(argument, value.iconName, value.icon, value.title, value.description);
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const BusMenuProperties& value) {
    write(argument, value.id, value.properties);
    return argument;
}
const QDBusArgument& operator>>(const QDBusArgument& argument, BusMenuProperties& value) {
    read(argument, value.id, value.properties);
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const BusMenuRemovedProperties& value) {
    write(argument, value.id, value.names);
    return argument;
}
const QDBusArgument& operator>>(const QDBusArgument& argument, BusMenuRemovedProperties& value) {
    read(argument, value.id, value.names);
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const BusMenuLayout& value) {
    argument.beginStructure();
    argument << value.id << value.properties;
    argument.beginArray(QMetaType::fromType<QDBusVariant>());
    for (const auto& child : value.children) argument << QDBusVariant(QVariant::fromValue(child));
    argument.endArray();
    argument.endStructure();
    return argument;
}
const QDBusArgument& operator>>(const QDBusArgument& argument, BusMenuLayout& value) {
    argument.beginStructure();
    argument >> value.id >> value.properties;
    argument.beginArray();
    while (!argument.atEnd()) {
        QDBusVariant child;
        argument >> child;
        value.children << qdbus_cast<BusMenuLayout>(child.variant());
    }
    argument.endArray();
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const BusMenuEvent& value) {
    write(argument, value.id, value.name, value.data, value.timestamp);
    return argument;
}
const QDBusArgument& operator>>(const QDBusArgument& argument, BusMenuEvent& value) {
    read(argument, value.id, value.name, value.data, value.timestamp);
    return argument;
}

void registerBusMenuTypes() {
    qDBusRegisterMetaType<BusPixmap>();
    qDBusRegisterMetaType<BusPixmaps>();
    qDBusRegisterMetaType<BusToolTip>();
    qDBusRegisterMetaType<BusMenuProperties>();
    qDBusRegisterMetaType<BusMenuPropertiesList>();
    qDBusRegisterMetaType<BusMenuRemovedProperties>();
    qDBusRegisterMetaType<BusMenuRemovedPropertiesList>();
    qDBusRegisterMetaType<BusMenuLayout>();
    qDBusRegisterMetaType<BusMenuEvent>();
    qDBusRegisterMetaType<BusMenuEvents>();
    qDBusRegisterMetaType<BusShortcut>();
    qDBusRegisterMetaType<QList<int>>();
}

}  // namespace vantle
