#include "platform/freedesktop/sharing/KdeConnectSharing.h"

#include <QDBusArgument>
#include <QMap>
#include <utility>

#include "platform/freedesktop/BusCall.h"
#include "support/SystemLog.h"

namespace vantle {
namespace {

using Names = QMap<QString, QString>;

const QString daemonPath = QStringLiteral("/modules/kdeconnect");
const QString daemonInterface = QStringLiteral("org.kde.kdeconnect.daemon");
const QString shareInterface = QStringLiteral("org.kde.kdeconnect.device.share");

QDBusMessage call(const QString& path, const QString& interface, const char* method) {
    auto message = QDBusMessage::createMethodCall(QStringLiteral("org.kde.kdeconnect"), path,
                                                  interface, QString::fromLatin1(method));
    message.setAutoStartService(false);
    return message;
}

/// Returns the names of the devices by their identifiers.
Names namesIn(const QDBusMessage& reply) {
    const QVariant value = reply.arguments().value(0);
    const bool isUsable = !isError(reply) && reply.signature() == QStringLiteral("a{ss}");
    return isUsable ? qdbus_cast<Names>(value) : Names();
}

}  // namespace

KdeConnectSharing::KdeConnectSharing(const QDBusConnection& bus) : bus_(bus) {}

void KdeConnectSharing::find(Found found) {
    auto message = call(daemonPath, daemonInterface, "deviceNames");
    message << /* only within reach */ true << /* only paired */ true;
    const auto answered = [this, found = std::move(found)](const QDBusMessage& reply) {
        const Names names = namesIn(reply);
        std::vector<SharingOffer> offers;
        for (auto device = names.begin(); device != names.end(); ++device)
            offers.push_back({device.value().toStdString(), "phone",
                              [this, id = device.key()](const auto& files) { send(id, files); }});
        found(std::move(offers));
    };
    callBus(bus_, message, *this, answered, timeout);
}

void KdeConnectSharing::send(const QString& device, const std::vector<Url>& files) {
    const QString path =
        daemonPath + QStringLiteral("/devices/") + device + QStringLiteral("/share");
    for (const Url& file : files) {
        auto message = call(path, shareInterface, "shareUrl");
        message << QString::fromStdString(file.address());
        callBus(bus_, message, *this, [](const QDBusMessage& reply) {
            if (isError(reply))
                systemLog("Vantle: cannot send to the device: " +
                          reply.errorMessage().toStdString());
        });
    }
}

}  // namespace vantle
