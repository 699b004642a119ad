#include "platform/freedesktop/sharing/GsConnectSharing.h"

#include <QDBusArgument>
#include <utility>

#include "platform/freedesktop/BusCall.h"
#include "platform/freedesktop/sharing/ManagedObjects.h"
#include "support/SystemLog.h"

namespace vantle {
namespace {

const QString service = QStringLiteral("org.gnome.Shell.Extensions.GSConnect");
const QString deviceInterface = service + QStringLiteral(".Device");

bool isReachable(const QVariantMap& device) {
    return device[QStringLiteral("Connected")].toBool() &&
           device[QStringLiteral("Paired")].toBool();
}

/// Returns the argument of the action "shareFile": the file's address, and false so that the device
/// does not open the file.
QVariant sharedFile(const Url& file) {
    QDBusArgument argument;
    argument.beginStructure();
    argument << QString::fromStdString(file.address()) << false;
    argument.endStructure();
    return QVariant::fromValue(argument);
}

}  // namespace

GsConnectSharing::GsConnectSharing(const QDBusConnection& bus) : bus_(bus) {}

void GsConnectSharing::find(Found found) {
    const auto message =
        managedObjectsCall(service, QStringLiteral("/org/gnome/Shell/Extensions/GSConnect"));
    const auto answered = [this, found = std::move(found)](const QDBusMessage& reply) {
        const ManagedObjects objects = managedObjects(reply);
        std::vector<SharingOffer> offers;
        for (auto object = objects.begin(); object != objects.end(); ++object) {
            const QVariantMap device = object.value()[deviceInterface];
            if (!isReachable(device)) continue;
            offers.push_back(
                {device[QStringLiteral("Name")].toString().toStdString(), "phone",
                 [this, path = object.key().path()](const auto& files) { send(path, files); }});
        }
        found(std::move(offers));
    };
    callBus(bus_, message, *this, answered, timeout);
}

void GsConnectSharing::send(const QString& devicePath, const std::vector<Url>& files) {
    for (const Url& file : files) {
        auto message = QDBusMessage::createMethodCall(
            service, devicePath, QStringLiteral("org.gtk.Actions"), QStringLiteral("Activate"));
        message << QStringLiteral("shareFile") << QVariantList{sharedFile(file)} << QVariantMap();
        callBus(bus_, message, *this, [](const QDBusMessage& reply) {
            if (isError(reply))
                systemLog("Vantle: cannot send to the device: " +
                          reply.errorMessage().toStdString());
        });
    }
}

}  // namespace vantle
