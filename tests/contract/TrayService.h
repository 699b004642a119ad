#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QObject>
#include <QStringList>
#include <string>
#include <vector>

#include "contract/EventLoop.h"
#include "platform/freedesktop/tray/BusMenuTypes.h"

namespace vantle {

/// The part of a tray that shows items over D-Bus and draws their menus.
class TrayService final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hasHost)

public:
    explicit TrayService(const QDBusConnection& bus) : bus_(bus) { registerBusMenuTypes(); }
    ~TrayService() override {
        if (bus_.isConnected()) stop();
    }

    void start() {
        bus_.registerObject(QStringLiteral("/StatusNotifierWatcher"), this,
                            QDBusConnection::ExportAllContents);
        bus_.registerService(QStringLiteral("org.kde.StatusNotifierWatcher"));
    }
    void stop() {
        bus_.unregisterService(QStringLiteral("org.kde.StatusNotifierWatcher"));
        bus_.unregisterObject(QStringLiteral("/StatusNotifierWatcher"));
        item_.clear();
    }

    /// Also shows the item of another tray.
    void share(const TrayService& other) { item_ = other.item_; }
    /// Leaves the bus abruptly, like a program that crashes.
    void die() {
        QDBusConnection::disconnectFromBus(bus_.name());
        bus_ = QDBusConnection(QStringLiteral("none"));  // drops the last reference
    }
    int layoutUpdates() const { return layoutUpdates_; }

    bool hasItem() const { return !item_.isEmpty(); }
    bool hasHost() const { return hasHost_; }
    /// Sets whether anybody shows the registered items.
    void setHost(bool hasHost) {
        hasHost_ = hasHost;
        if (hasHost)
            emit StatusNotifierHostRegistered();
        else
            emit StatusNotifierHostUnregistered();
    }

    /// Returns the reply to a call to the item or to its menu.
    QDBusMessage call(const QString& object, const QString& interface, const QString& method,
                      const QVariantList& arguments) {
        auto message = QDBusMessage::createMethodCall(item_, object, interface, method);
        message.setArguments(arguments);
        const auto pending = bus_.asyncCall(message);
        if (!runUntil([&] { return pending.isFinished(); })) return {};
        return pending.reply();
    }
    QDBusMessage callMenu(const QString& method, const QVariantList& arguments) {
        return call(QStringLiteral("/MenuBar"), QStringLiteral("com.canonical.dbusmenu"), method,
                    arguments);
    }
    QVariant property(const QString& name) {
        const auto reply =
            call(QStringLiteral("/StatusNotifierItem"),
                 QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"),
                 {QStringLiteral("org.kde.StatusNotifierItem"), name});
        return reply.arguments().value(0).value<QDBusVariant>().variant();
    }

    /// Opens the menu, as trays do.
    BusMenuLayout open() {
        callMenu(QStringLiteral("AboutToShow"), {0});
        return layout();
    }
    BusMenuLayout layout() {
        const auto reply = callMenu(QStringLiteral("GetLayout"), {0, -1, QStringList()});
        return qdbus_cast<BusMenuLayout>(reply.arguments().value(1));
    }
    void send(int id, const QString& event) {
        callMenu(QStringLiteral("Event"),
                 {id, event, QVariant::fromValue(QDBusVariant(0)), QVariant::fromValue(0U)});
    }

signals:
    void StatusNotifierHostRegistered();
    void StatusNotifierHostUnregistered();

public slots:
    void RegisterStatusNotifierItem(const QString&, const QDBusMessage& message) {
        item_ = message.service();
        bus_.connect(item_, QStringLiteral("/MenuBar"), QStringLiteral("com.canonical.dbusmenu"),
                     QStringLiteral("LayoutUpdated"), this, SLOT(noteLayoutUpdate()));
    }
    void noteLayoutUpdate() { ++layoutUpdates_; }

private:
    QDBusConnection bus_;
    QString item_;
    int layoutUpdates_ = 0;
    bool hasHost_ = true;
};

}  // namespace vantle
