#include "platform/qt/sharing/BluetoothSharing.h"

#include <QFile>
#include <QStandardPaths>
#include <algorithm>
#include <array>
#include <utility>

#include "platform/qt/BusCall.h"
#include "platform/qt/sharing/ManagedObjects.h"
#include "support/SystemLog.h"

namespace vantle {
namespace {

struct SendingProgram {
    const char* name;
    const char* option;  ///< In front of each file; null when there is none.
};

// Of GNOME, of Blueman (Xfce, MATE, LXQt), and of KDE.
constexpr std::array sendingPrograms{SendingProgram{"bluetooth-sendto", nullptr},
                                     SendingProgram{"blueman-sendto", nullptr},
                                     SendingProgram{"bluedevil-sendfile", "--files"}};

struct Command {
    std::string program;  ///< Empty when none is installed.
    std::vector<std::string> arguments;
};

Command commandFor(const std::vector<Url>& files) {
    Command command;
    for (const auto& [name, option] : sendingPrograms) {
        const QString path = QStandardPaths::findExecutable(QString::fromLatin1(name));
        if (path.isEmpty()) continue;
        command.program = QFile::encodeName(path).toStdString();
        for (const Url& file : files) {
            if (option) command.arguments.emplace_back(option);
            command.arguments.push_back(file.path());
        }
        break;
    }
    return command;
}

bool hasAdapter(const ManagedObjects& objects) {
    return std::ranges::any_of(objects, [](const auto& interfaces) {
        return interfaces.contains(QStringLiteral("org.bluez.Adapter1"));
    });
}

}  // namespace

BluetoothSharing::BluetoothSharing(ProcessLauncher& launcher, std::optional<QDBusConnection> bus)
    : launcher_(launcher), bus_(std::move(bus)) {}

void BluetoothSharing::find(Found found) {
    if (commandFor({}).program.empty()) {
        found({});
        return;
    }
    const auto message = managedObjectsCall(QStringLiteral("org.bluez"), QStringLiteral("/"));
    const auto answered = [this, found = std::move(found)](const QDBusMessage& reply) {
        std::vector<SharingOffer> offers;
        if (hasAdapter(managedObjects(reply)))
            offers.push_back(
                {"Bluetooth…", "radiowaves", [this](const auto& files) { send(files); }});
        found(std::move(offers));
    };
    // Nobody else here needs the system's bus.
    callBus(bus_ ? *bus_ : QDBusConnection::systemBus(), message, *this, answered, patience);
}

void BluetoothSharing::send(const std::vector<Url>& files) {
    const Command command = commandFor(files);
    if (const Outcome failure = launcher_.launch(command.program, command.arguments))
        systemLog("Vantle: cannot send over Bluetooth: " + failure->message);
}

}  // namespace vantle
