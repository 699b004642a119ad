#pragma once

#include <QDBusMessage>
#include <QMap>
#include <QVariantMap>
#include <QtDBus/QDBusObjectPath>

namespace vantle {

/// The objects of a service, as org.freedesktop.DBus.ObjectManager reports them: the properties of
/// each interface of each object.
using ManagedObjects = QMap<QDBusObjectPath, QMap<QString, QVariantMap>>;

/// Returns the call that asks for the objects. It does not start the service.
QDBusMessage managedObjectsCall(const QString& service, const QString& path);

/// Returns the objects in the reply; none if it is an error or has another signature.
ManagedObjects managedObjects(const QDBusMessage& reply);

}  // namespace vantle
