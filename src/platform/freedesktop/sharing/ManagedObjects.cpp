#include "platform/freedesktop/sharing/ManagedObjects.h"

#include <QDBusArgument>
#include <QDBusMetaType>

#include "platform/freedesktop/BusCall.h"

namespace vantle {

QDBusMessage managedObjectsCall(const QString& service, const QString& path) {
    auto message = QDBusMessage::createMethodCall(
        service, path, QStringLiteral("org.freedesktop.DBus.ObjectManager"),
        QStringLiteral("GetManagedObjects"));
    message.setAutoStartService(false);
    return message;
}

ManagedObjects managedObjects(const QDBusMessage& reply) {
    if (isError(reply) || reply.signature() != QStringLiteral("a{oa{sa{sv}}}")) return {};
    return qdbus_cast<ManagedObjects>(reply.arguments().value(0));
}

}  // namespace vantle
