#pragma once

#include <QDBusMessage>
#include <QMap>
#include <QVariantMap>
#include <QtDBus/QDBusObjectPath>

namespace vantle {

/// What a service has, as org.freedesktop.DBus.ObjectManager tells it: the properties of each
/// interface of each object.
using ManagedObjects = QMap<QDBusObjectPath, QMap<QString, QVariantMap>>;

/// The question for them. It starts nobody.
QDBusMessage managedObjectsCall(const QString& service, const QString& path);

/// The answer; nothing where it is an error or of another shape.
ManagedObjects managedObjects(const QDBusMessage& reply);

}  // namespace vantle
