#include "platform/freedesktop/BusCall.h"

#include <QDBusError>
#include <QDBusPendingCallWatcher>
#include <utility>

namespace vantle {

void callBus(const QDBusConnection& bus, const QDBusMessage& message, QObject& owner,
             std::function<void(const QDBusMessage& reply)> answered,
             std::chrono::milliseconds timeout) {
    // Without a bus the pending call would never finish, not even with an error.
    if (!bus.isConnected()) {
        answered(message.createErrorReply(QDBusError::Disconnected,
                                          QStringLiteral("there is no message bus")));
        return;
    }
    auto* call = new QDBusPendingCallWatcher(
        bus.asyncCall(message, static_cast<int>(timeout.count())), &owner);
    QObject::connect(call, &QDBusPendingCallWatcher::finished, &owner,
                     [call, answered = std::move(answered)] {
                         call->deleteLater();
                         answered(call->reply());
                     });
}

}  // namespace vantle
