#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <chrono>
#include <functional>

class QObject;

namespace vantle {

/// Sends a message and calls `answered` once, on the main thread, with the reply or the error: when
/// it arrives or `timeout` has passed, or inside this call if there is no bus. Does not call it
/// after `owner` was destroyed.
void callBus(const QDBusConnection& bus, const QDBusMessage& message, QObject& owner,
             std::function<void(const QDBusMessage& reply)> answered,
             std::chrono::milliseconds timeout = std::chrono::seconds(25));

inline bool isError(const QDBusMessage& reply) {
    return reply.type() != QDBusMessage::ReplyMessage;
}

}  // namespace vantle
