#include "platform/freedesktop/sharing/BluetoothSharing.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

#include "platform/freedesktop/BusCall.h"
#include "platform/freedesktop/FileCommand.h"
#include "platform/freedesktop/sharing/ManagedObjects.h"
#include "support/Localization.h"
#include "support/SystemLog.h"

namespace vantle {
namespace {

// The programs of GNOME, of Blueman (Xfce, MATE, LXQt), and of KDE.
constexpr std::array sendingPrograms{FileProgram{"bluetooth-sendto", nullptr},
                                     FileProgram{"blueman-sendto", nullptr},
                                     FileProgram{"bluedevil-sendfile", "--files"}};

bool hasAdapter(const ManagedObjects& objects) {
    return std::ranges::any_of(objects, [](const auto& interfaces) {
        return interfaces.contains(QStringLiteral("org.bluez.Adapter1"));
    });
}

}  // namespace

BluetoothSharing::BluetoothSharing(ProcessLauncher& launcher, std::optional<QDBusConnection> bus)
    : launcher_(launcher), bus_(std::move(bus)) {}

void BluetoothSharing::find(Found found) {
    if (!commandFor(sendingPrograms, {})) {
        found({});
        return;
    }
    const auto message = managedObjectsCall(QStringLiteral("org.bluez"), QStringLiteral("/"));
    const auto answered = [this, found = std::move(found)](const QDBusMessage& reply) {
        std::vector<SharingOffer> offers;
        if (hasAdapter(managedObjects(reply)))
            offers.push_back({localized("SharingServicePicker", "Bluetooth…"), "radiowaves",
                              [this](const auto& files) { send(files); }});
        found(std::move(offers));
    };
    // Connects to the system bus only here, because nothing else needs it.
    callBus(bus_ ? *bus_ : QDBusConnection::systemBus(), message, *this, answered, timeout);
}

void BluetoothSharing::send(const std::vector<Url>& files) {
    const auto command = commandFor(sendingPrograms, files);
    const Outcome failure =
        command ? launcher_.launch(command->program, command->arguments)
                : Outcome(Failure{ENOENT, "the program is no longer installed", {}});
    if (failure) systemLog("Vantle: cannot send over Bluetooth: " + failure->message);
}

}  // namespace vantle
